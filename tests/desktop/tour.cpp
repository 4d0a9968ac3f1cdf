#include "tests/desktop/tour.h"

#include <QLabel>
#include <QListWidget>
#include <QSlider>
#include <QTest>

namespace corvana::prova {

namespace {

/// Notes on ledger lines, which a white label covers as long as they aren't shown.
bool Coperta(int posizione) {
    const auto fra = [=](int da, int a) { return posizione >= da && posizione <= a; };
    return fra(11, 16) || fra(28, 31) || fra(40, 44) || fra(56, 62);
}

}  // namespace

Giro::Giro(CasaDiMemoria& dove)
    : PalcoMelodia(
          {}, [&dove](Macchina& macchina) { dove.Prepara(macchina); }, false),
      casa(dove) {
    Calma();
}

void Giro::Ascolta() {
    daMessaggio_ = casa.suonato->messaggi.size();
    daOnda_ = casa.suonato->onde.size();
}

std::vector<Registratore::Voce> Giro::Battute(int canale) const {
    std::vector<Registratore::Voce> battute;
    const auto& tutti = casa.suonato->messaggi;
    for (std::size_t i = daMessaggio_; i < tutti.size(); ++i) {
        const std::uint32_t m = tutti[i].messaggio;
        if ((m & 0xFFU) == 0x8FU + static_cast<unsigned>(canale) && (m >> 16U & 0xFFU) > 2)
            battute.push_back(tutti[i]);
    }
    return battute;
}

Interi Giro::Note(int canale) const {
    Interi note;
    for (const auto& battuta : Battute(canale))
        note.push_back(static_cast<int>(battuta.messaggio >> 8U & 0xFFU));
    return note;
}

Interi Giro::Forze(int canale) const {
    Interi forze;
    for (const auto& battuta : Battute(canale))
        forze.push_back(static_cast<int>(battuta.messaggio >> 16U & 0xFFU));
    return forze;
}

std::vector<double> Giro::Istanti(int canale) const {
    std::vector<double> istanti;
    for (const auto& battuta : Battute(canale))
        istanti.push_back(battuta.istante);
    return istanti;
}

std::vector<std::pair<int, int>> Giro::Strumenti() const {
    std::vector<std::pair<int, int>> strumenti;
    const auto& tutti = casa.suonato->messaggi;
    for (std::size_t i = daMessaggio_; i < tutti.size(); ++i)
        if (const std::uint32_t m = tutti[i].messaggio; (m & 0xF0U) == 0xC0U)
            strumenti.emplace_back((m & 0xFU) + 1, m >> 8U);
    return strumenti;
}

std::vector<std::string> Giro::Onde() const {
    std::vector<std::string> onde;
    for (std::size_t i = daOnda_; i < casa.suonato->onde.size(); ++i) {
        const std::string& percorso = casa.suonato->onde[i].percorso;
        onde.push_back(percorso.substr(percorso.find_last_of('/') + 1));
    }
    return onde;
}

Interi Giro::SulPentagramma() {
    Interi posizioni;
    for (int posizione = 11; posizione <= 64; ++posizione) {
        if (posizione > 31 && posizione < 40) continue;
        const auto& stato = StatoDi(scrivania, QStringLiteral("n%1").arg(posizione));
        if (stato.Visible != Coperta(posizione)) posizioni.push_back(posizione);
    }
    return posizioni;
}

Interi Giro::TastiAccesi() {
    Interi accesi;
    for (int tasto = 0; tasto < 60; ++tasto)
        if (StatoDi(scrivania, QStringLiteral("lb%1").arg(tasto)).BackStyle == fondoOpaco)
            accesi.push_back(tasto);
    return accesi;
}

const std::string& Giro::Salvata(const std::string& nome) const {
    return casa.casa.contenuti.at("/casa/Documenti/Corvana/Melodie/Demo/" + nome + ".mel");
}

void Giro::ToccaTasto(int indice) {
    const std::string nome = "lb" + std::to_string(indice);
    Tocca(nome, NelTasto(nome));
}

void Giro::ScegliRiga(const std::string& lista, const std::string& inizio) {
    auto& elenco = Di(lista).Come<QListWidget>();
    const auto trovate = elenco.findItems(QString::fromStdString(inizio), Qt::MatchStartsWith);
    if (trovate.isEmpty()) throw std::logic_error(lista + " has no row " + inizio);
    elenco.scrollToItem(trovate.front());
    QTest::mouseClick(elenco.viewport(), Qt::LeftButton, {},
                      elenco.visualItemRect(trovate.front()).center());
    Calma();
}

void Giro::AllEstremo(const std::string& barra, bool massimo) {
    auto& slitta = Di(barra).Come<QSlider>();
    slitta.setFocus();
    QTest::keyClick(&slitta, massimo ? Qt::Key_End : Qt::Key_Home);
    Calma();
}

}  // namespace corvana::prova
