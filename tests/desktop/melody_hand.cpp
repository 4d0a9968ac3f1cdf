#include "tests/desktop/melody_hand.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QWindow>
#include <stdexcept>

#include "core/text.h"
#include "melody/melody.h"

namespace corvana::prova {

namespace {

constexpr int larga = 1240, alta = 640;

}  // namespace

PalcoMelodia::PalcoMelodia(const std::string& cartella,
                           const std::function<void(Macchina&)>& prepara, bool aperta)
    : PalcoAMano(cartella, prepara) {
    if (aperta) ApriComposer();
}

void PalcoMelodia::ApriComposer() {
    Tocca("ToolButton2");
    AspettaFinestra(scrivania, QStringLiteral("frmComposer"));
    // Larger than the platform's screen: else the tempo's slider has fewer pixels than tempi.
    scrivania.Davanti()->Finestra().resize(larga, alta);
    Calma();
}

QPoint PalcoMelodia::NelTasto(const std::string& nome) {
    const QRect area = Di(nome).rect();
    return {area.width() / 2, area.height() * 9 / 10};
}

void PalcoMelodia::Fai(const GestoMouse& gesto) {
    const bool tasto = gesto.controllo.starts_with("lb");
    const QPoint dove = tasto ? NelTasto(gesto.controllo) : Di(gesto.controllo).rect().center();
    gesto.doppio ? ToccaDueVolte(gesto.controllo, dove) : Tocca(gesto.controllo, dove);
}

void PalcoMelodia::ScegliStrumento(int programma) {
    Tocca("pictCi");
    AspettaFinestra(scrivania, QStringLiteral("frmStrum"));
    auto& lista = Elenco();
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                      lista.visualItemRect(lista.item(0)).center());
    Batti(Qt::Key_Home);
    for (int riga = 0; riga < programma; ++riga)
        Batti(Qt::Key_Down);
    Tocca("cmdEsci");
    AspettaFinestra(scrivania, QStringLiteral("frmComposer"));
    Calma();
}

void PalcoMelodia::Scrivi(std::size_t voce, const std::string& strumento, const TestiVoce& testi) {
    Tocca("VoceAttiva" + std::to_string(voce));
    ScegliStrumento(std::stoi(strumento));
    for (const GestoMouse& gesto : GestiDi(testi))
        Fai(gesto);
}

void PalcoMelodia::Scrivi(const LetturaMel& letta) {
    Trascina("Slider1", "Velocità", std::string(SenzaBlanchi(letta.tempo)));
    Scrivi(soprano, letta.strumento.front(), letta.soprano);
    for (const BloccoMel& blocco : letta.blocchi)
        Scrivi(blocco.voce, blocco.strumento,
               {blocco.testi.at(0), blocco.testi.at(1), blocco.testi.at(2)});
}

void PalcoMelodia::ScriviIn(const std::string& casella, const std::string& testo) {
    auto& riga = Di(casella).Come<QLineEdit>();
    QTest::mouseClick(&riga, Qt::LeftButton);
    // What the click makes of the box comes first, as for a person.
    Calma();
    riga.selectAll();
    QTest::keyClicks(&riga, QString::fromStdString(testo));
    Batti(Qt::Key_Tab);
}

void PalcoMelodia::SalvaConNome(const std::string& nome) {
    Tocca("ToolButton5");
    Rispondi(nome);
}

void PalcoMelodia::Apri(const std::string& nome) {
    Tocca("ToolButton3");
    ToccaRiga(nome);
    Tocca("cmdEseguiFile");
}

QListWidget& PalcoMelodia::Elenco(const std::string& lista) {
    return Di(lista).Come<QListWidget>();
}

std::vector<std::string> PalcoMelodia::Righe() {
    std::vector<std::string> righe;
    for (int i = 0; i < Elenco().count(); ++i)
        righe.push_back(Elenco().item(i)->text().toStdString());
    return righe;
}

QPoint PalcoMelodia::PostoRiga(const std::string& riga, const std::string& lista) {
    QListWidget& elenco = Elenco(lista);
    const auto trovate = elenco.findItems(QString::fromStdString(riga), Qt::MatchExactly);
    if (trovate.size() != 1) throw std::logic_error("the list has no one row " + riga);
    elenco.scrollToItem(trovate.front());
    return elenco.visualItemRect(trovate.front()).center();
}

void PalcoMelodia::ToccaRiga(const std::string& riga, Qt::KeyboardModifiers modificatori) {
    QTest::mouseClick(Elenco().viewport(), Qt::LeftButton, modificatori, PostoRiga(riga));
    Calma();
}

void PalcoMelodia::ToccaRigaDueVolte(const std::string& riga, const std::string& lista) {
    const Cosa dove = Di(lista);
    const QPoint posto = Elenco(lista).viewport()->mapTo(&Elenco(lista), PostoRiga(riga, lista));
    QTest::mouseDClick(dove.window()->windowHandle(), Qt::LeftButton, {},
                       dove.NellaFinestra(posto));
    Calma();
}

}  // namespace corvana::prova
