#include "tests/desktop/hand_stage.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QWindow>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "core/real_files.h"
#include "core/settings.h"
#include "tests/support/scripted_boxes.h"

namespace corvana::prova {

namespace {

constexpr qint64 pazienza = 60'000;     ///< milliseconds, to end a hang
constexpr double inizioSuono = 10'000;  ///< instant of every play, whatever was done before
constexpr double anticipo = 0.1;

bool DiNota(std::uint32_t messaggio) {
    const std::uint32_t genere = messaggio & 0xF0U;
    return genere == 0x80U || genere == 0x90U;
}

}  // namespace

std::string Contenuto(const std::string& percorso) {
    std::ifstream file(percorso, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void UscitaAscoltata::Ascolta(double da) {
    ascolta_ = true;
    da_ = da;
    mandati_.clear();
}

int UscitaAscoltata::midiOutShortMsg(HandleDispositivo handle, std::uint32_t messaggio) {
    mandati_.push_back({Istante(), messaggio});
    if (!ascolta_ && DiNota(messaggio)) return 0;
    return resa_.midiOutShortMsg(handle, messaggio);
}

PalcoAMano::PalcoAMano(const std::string& cartella, const std::function<void(Macchina&)>& prepara)
    : PalcoProgramma(QStringLiteral(CORVANA_DATA), [this, &cartella, &prepara](Macchina& macchina) {
          macchina.orologio = &orologio;
          macchina.percorsoImpostazioni = stato.filePath(QStringLiteral("mine")).toStdString();
          macchina.uscite = [this](std::function<double()> istante) {
              auto fatta = std::make_unique<UscitaAscoltata>(std::move(istante));
              uscita = fatta.get();
              return fatta;
          };
          FileReali file;
          RiquadriDaCopione nessuno;
          Impostazioni impostazioni(file, nessuno, macchina.percorsoImpostazioni);
          impostazioni.Prepara();
          impostazioni.ScriviValore("LastDir", cartella);
          if (prepara) prepara(macchina);
      }) {}

const std::string& PalcoAMano::Dice(const std::string& nome) {
    return StatoDi(scrivania, QString::fromStdString(nome)).Caption;
}

/// It waits for the answer in a box, is held up, or waits for the next event. The queue first: an
/// event that was taken from it has ended the wait.
bool PalcoAMano::Fermo() {
    const QDialog* riquadro = scrivania.Riquadro();
    if (riquadro && riquadro->isVisible()) return true;
    if (orologio.Fermo()) return true;
    return scrivania.Coda().Vuota() && orologio.InAttesa();
}

void PalcoAMano::Calma() {
    QElapsedTimer limite;
    limite.start();
    bool fermo = false;
    // What the logic said before it began to wait is shown by a turn of the loop that follows.
    while (!std::exchange(fermo, Fermo()) || !fermo) {
        QCoreApplication::processEvents();
        if (limite.elapsed() > pazienza) throw std::logic_error("the program never comes to rest");
    }
    if (dopo) dopo();
}

void PalcoAMano::Tocca(const std::string& nome) {
    Tocca(nome, Di(nome).rect().center());
}

void PalcoAMano::Tocca(const std::string& nome, QPoint dove) {
    const Cosa cosa = Di(nome);
    if (!cosa.isVisible()) throw std::logic_error(nome + " can't be seen");
    Clicca(cosa, dove);
    Calma();
}

void PalcoAMano::ToccaDueVolte(const std::string& nome) {
    ToccaDueVolte(nome, Di(nome).rect().center());
}

void PalcoAMano::ToccaDueVolte(const std::string& nome, QPoint dove) {
    const Cosa cosa = Di(nome);
    QTest::mouseDClick(cosa.window()->windowHandle(), Qt::LeftButton, {}, cosa.NellaFinestra(dove));
    Calma();
}

void PalcoAMano::Batti(Qt::Key tasto, Qt::KeyboardModifiers modificatori) {
    Premi(scrivania, tasto, modificatori);
    Calma();
    Lascia(scrivania, tasto, modificatori);
    Calma();
}

void PalcoAMano::VaiA(const std::string& nome) {
    constexpr int fermate = 200;  // more than the window has
    for (int passi = 0; !Di(nome).hasFocus(); ++passi) {
        if (passi == fermate) throw std::logic_error("the Tab key never comes to " + nome);
        Batti(Qt::Key_Tab);
    }
}

/// Pixel by pixel from where it is, first down and then up.
void PalcoAMano::Trascina(const std::string& barra, const std::string& casella,
                          const std::string& finche) {
    auto& slitta = Di(barra).Come<QSlider>();
    QPoint qui = Pollice(slitta);
    int verso = 1;
    QTest::mousePress(&slitta, Qt::LeftButton, {}, qui);
    while (Dice(casella) != finche) {
        if (qui.y() > slitta.height()) verso = -1;
        if (qui.y() < 0) throw std::logic_error(barra + " never comes to " + finche);
        QTest::mouseMove(&slitta, qui += QPoint(0, verso));
        Calma();
    }
    QTest::mouseRelease(&slitta, Qt::LeftButton, {}, qui);
    Calma();
}

QDialog& PalcoAMano::RiquadroAperto() {
    if (!Aspetta([this] { return scrivania.Riquadro() && scrivania.Riquadro()->isVisible(); }))
        throw std::logic_error("no box came");
    return *scrivania.Riquadro();
}

/// As the window manager does when a box closes.
void PalcoAMano::DopoIlRiquadro() {
    Calma();
    scrivania.Davanti()->Finestra().activateWindow();
    Calma();
}

void PalcoAMano::Rispondi(const std::string& testo) {
    auto* riga = RiquadroAperto().findChild<QLineEdit*>();
    riga->selectAll();
    QTest::keyClicks(riga, QString::fromStdString(testo));
    QTest::keyClick(riga, Qt::Key_Return);
    DopoIlRiquadro();
}

void PalcoAMano::Decidi(bool si) {
    auto& domanda = dynamic_cast<QMessageBox&>(RiquadroAperto());
    QTest::mouseClick(domanda.button(si ? QMessageBox::Yes : QMessageBox::No), Qt::LeftButton);
    DopoIlRiquadro();
}

void PalcoAMano::Prosegui() {
    orologio.Riprendi();
    Calma();
}

void PalcoAMano::LasciaPassare(double secondi) {
    FermaDopo(secondi);
    Calma();
}

void PalcoAMano::Scegli(const std::string& voce) {
    QAction& scelta = TrovaVoce(scrivania, QString::fromStdString(voce));
    if (!scelta.isEnabled()) throw std::logic_error(voce + " can't be chosen");
    scelta.trigger();
    Calma();
}

void PalcoAMano::Attendi(const std::string& finestra) {
    AspettaFinestra(scrivania, QString::fromStdString(finestra));
    Calma();
}

void PalcoAMano::TornaA(const std::string& finestra) {
    scrivania.Davanti()->Finestra().close();
    Attendi(finestra);
}

PalcoAMano::Udito PalcoAMano::Suona() {
    constexpr double eco = 4;
    orologio.Avanza(inizioSuono);
    uscita->Ascolta(inizioSuono - anticipo);
    Tocca("cmdPlay");
    const double fine = orologio.Adesso() - inizioSuono + anticipo;
    return {uscita->Mandati(), uscita->Senti(fine + eco), fine};
}

}  // namespace corvana::prova
