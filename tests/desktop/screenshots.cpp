// Shows the real windows in their states and writes what they look like: to be looked at by a
// person. Usage: corvana_screenshots FOLDER DATA [SIZE], SIZE for windows that the user has made
// larger or smaller: a number of times the designed size, "smallest", or as 1920x1080.
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <array>
#include <cstdlib>
#include <stdexcept>

#include "desktop/help_window.h"
#include "tests/desktop/keyboard_stage.h"
#include "tests/desktop/memory_home.h"
#include "tests/desktop/program_stage.h"
#include "tests/desktop/quick_clock.h"
#include "tests/desktop/walk.h"

namespace {

using namespace corvana;
using namespace corvana::prova;

constexpr double fretta = 4;  ///< of the program's clock

void Respira() {
    int passate = 0;
    Aspetta([&] { return ++passate > 3; });
}

class Macchinetta {
public:
    Macchinetta(Scrivania& scrivania, QString cartella, QString misura)
        : scrivania_(&scrivania), cartella_(std::move(cartella)), misura_(std::move(misura)) {}

    void Scatta(QWidget& cosa, const QString& nome) {
        VistaFinestra* davanti = scrivania_->Davanti();
        if (davanti && &davanti->Finestra() == &cosa) PonMisura(*davanti);
        const QString file = QDir(cartella_).filePath(lingua_ + nome + QStringLiteral(".png"));
        if (!Fotografa(cosa).save(file)) throw std::runtime_error(qPrintable(file));
    }
    /// Of what is photographed from now on, the beginning of the names.
    void PonLingua(const QString& lingua) { lingua_ = lingua; }

private:
    void PonMisura(VistaFinestra& davanti) const {
        QMainWindow& finestra = davanti.Finestra();
        const QStringList lati = misura_.split(QLatin1Char('x'));
        if (misura_ == QLatin1String("smallest"))
            finestra.resize(1, 1);
        else if (lati.size() == 2)
            finestra.resize(lati[0].toInt(), lati[1].toInt());
        else
            return Ingrandisci(davanti, misura_.toDouble());
        Respira();
    }

    Scrivania* scrivania_;
    QString cartella_;
    QString misura_;
    QString lingua_;
};

void FotografaAiuto(Macchinetta& m, const QString& aiuto) {
    const ParoleSchermo parole;
    FinestraAiuto finestra(parole, [] {});
    finestra.Mostra(aiuto, 0, nullptr);
    Respira();
    m.Scatta(finestra, QStringLiteral("help"));
    finestra.close();
}

/// The five-octave keyboard, which no window of the program shows alone.
void FotografaTastiera(const QString& cartella, const QString& misura) {
    PalcoTastiera palco;
    Macchinetta m(palco.scrivania, cartella, misura);
    m.Scatta(palco.scrivania.Davanti()->Finestra(), QStringLiteral("keyboard"));
    palco.NellaLogica([](FormTastiera& form) {
        for (const std::int16_t nota : std::array<std::int16_t, 6>{48, 52, 55, 58, 61, 72})
            form.tastiera.sw(nota, 1);
        for (const std::size_t barra : {12, 25, 36, 46})
            Accendi(form.tastiera.lbr[barra], true);
    });
    Trova(palco.scrivania, "img2").setFocus(Qt::TabFocusReason);
    m.Scatta(palco.scrivania.Davanti()->Finestra(), QStringLiteral("keyboard-lit"));
}

}  // namespace

int main(int argc, char** argv) {
    Applicazione applicazione(argc, argv);
    const QString cartella = QString::fromLocal8Bit(argv[1]);
    const QString dati = QString::fromLocal8Bit(argv[2]);
    const QString misura = argc > 3 ? QString::fromLocal8Bit(argv[3]) : QStringLiteral("1");
    QDir().mkpath(cartella);
    const QTemporaryDir stato;
    OrologioSvelto orologio(fretta);
    Macchina macchina = MacchinaMuta(dati, stato);
    macchina.orologio = &orologio;
    FileInMemoria file;
    DaiCasa(file, macchina, dati);
    RiempiSupporto(file);
    Scrivania& scrivania = applicazione.LaScrivania();
    scrivania.Avvia([&] { LogicaDelProgramma(applicazione, macchina); });
    AspettaFinestra(scrivania, "CorvanaMainF");
    Macchinetta m(scrivania, cartella, misura);
    Passeggiata giro(scrivania, [&](QWidget& cosa, const QString& nome) { m.Scatta(cosa, nome); });
    for (const bool inglese : {false, true}) {
        m.PonLingua(inglese ? QStringLiteral("en-") : QStringLiteral("it-"));
        giro.Gira(inglese);
        FotografaAiuto(m, dati + (inglese ? QStringLiteral("/corvanaen.chm")
                                          : QStringLiteral("/corvana.chm")));
    }
    scrivania.Termina();
    FotografaTastiera(cartella, misura);
    return 0;
}
