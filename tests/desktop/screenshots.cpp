// Shows the real main window in its states and writes what it looks like: to be looked at by a
// person. Usage: corvana_screenshots FOLDER DATA [TIMES], TIMES for windows that the user has
// enlarged.
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <array>
#include <cstdlib>

#include "tests/desktop/composer_screenshots.h"
#include "tests/desktop/keyboard_stage.h"
#include "tests/desktop/memory_home.h"
#include "tests/desktop/program_stage.h"

namespace {

using namespace corvana;
using namespace corvana::prova;

class Servizio {
public:
    Servizio(Scrivania& scrivania, QString cartella, double volte)
        : scrivania_(scrivania), cartella_(std::move(cartella)), volte_(volte) {}

    void Scatta(const QString& nome) {
        Ingrandisci(*scrivania_.Davanti(), volte_);
        Salva(Fotografa(scrivania_), nome);
    }
    /// A menu of the bar as it drops down.
    void ScattaMenu(const char* voce) {
        QMenu& menu = *TrovaVoce(scrivania_, QString::fromUtf8(voce)).menu();
        menu.popup(QPoint());
        Respira();
        Salva(Fotografa(menu), QStringLiteral("menu"));
        menu.close();
        Respira();
    }
    const Aspetto& Stato(const char* nome) { return StatoDi(scrivania_, QString::fromUtf8(nome)); }
    void Salva(const QImage& foto, const QString& nome) const {
        foto.save(QDir(cartella_).filePath(lingua_ + nome + QStringLiteral(".png")));
    }
    /// Of what is photographed from now on, the beginning of the names.
    void PonLingua(const QString& lingua) { lingua_ = lingua; }
    Cosa Di(const char* nome) { return Trova(scrivania_, QString::fromUtf8(nome)); }
    void Scegli(const char* voce) {
        TrovaVoce(scrivania_, QString::fromUtf8(voce)).trigger();
        Respira();
    }
    void Premi(const char* nome) { Clicca(scrivania_, QString::fromUtf8(nome)); }
    void Attendi(const QString& finestra) { AspettaFinestra(scrivania_, finestra); }
    void Chiudi() {
        scrivania_.Davanti()->Finestra().close();
        Attendi(QStringLiteral("CorvanaMainF"));
    }
    bool Pronto() {
        return Aspetta([this] { return Di("Start").isEnabled(); });
    }
    /// Lets what was asked for come to the screen.
    void Respira() {
        bool passato = false;
        Aspetta([&] { return std::exchange(passato, true); });
    }

private:
    Scrivania& scrivania_;
    QString cartella_;
    QString lingua_;
    double volte_;
};

void FotografaTutto(Servizio& s) {
    s.Scegli("mnuNormale");
    s.Scatta("idle");
    s.ScattaMenu("Opzioni");
    s.Premi("lblMn");
    s.Premi("Start");
    Aspetta([&] { return !s.Di("Regolo").isVisible(); });
    for (const char* nome : {"pdo", "pre", "pmi", "pfa", "psol", "pla", "psi", "pdo"})
        s.Premi(nome);
    s.Respira();
    s.Scatta("running");
    s.Premi("Start");
    Aspetta([&] { return s.Di("frmRisultati").isVisible(); });
    s.Scatta("results");
    s.Scegli("mnuAutomatico");
    Aspetta([&] { return s.Di("Slider1").isVisible(); });
    s.Scatta("automatic");
    s.Scegli("mnuMetro");
    Aspetta([&] { return s.Di("frmMetro").isVisible(); });
    s.Scatta("metronome");
}

/// Ticking, in the meter of six pulses.
void FotografaBattito(Servizio& s) {
    while (!s.Stato("lblPuls5").Visible) {
        s.Premi("lblTs");
        s.Respira();
    }
    s.Premi("cmdSSmetro");
    for (const auto& [nome, colore] : {std::pair{"ticking", Rgb(0, 0, 255)},
                                       {"ticking-b", Rgb(0, 255, 0)},
                                       {"ticking-a", Rgb(255, 0, 0)}}) {
        Aspetta([&, c = colore] {
            for (int i = 0; i < 6; ++i)
                if (s.Stato(qPrintable(QStringLiteral("lblPuls%1").arg(i))).BackColor == c)
                    return true;
            return false;
        });
        s.Scatta(QString::fromLatin1(nome));
    }
    s.Premi("cmdSSmetro");
    Aspetta([&] { return s.Di("cmdSetup").isEnabled(); });
}

/// A window that opens over the main one, by the control or the menu entry that opens it.
void FotografaSopra(Servizio& s, const QString& finestra, const std::function<void()>& apri) {
    apri();
    s.Attendi(finestra);
    s.Scatta(finestra);
    s.Chiudi();
}

void FotografaSecondarie(Servizio& s) {
    for (const auto& [voce, finestra] : {std::pair{"mnuVersione", "frmAbout"},
                                         {"mnuSs", "frmStrum"},
                                         {"mnuMidiTest", "frmMidiTest"}})
        FotografaSopra(s, QString::fromLatin1(finestra), [&s, v = voce] { s.Scegli(v); });
    FotografaSopra(s, QStringLiteral("frmConfMetro"), [&s] { s.Premi("cmdSetup"); });
    s.Premi("lblCloseMetro");
}

struct PaginaFotografata {
    const char *voce, *cornice, *start;
    /// What shows the answers; of the chords they are shown from the start.
    const char* aiuto;
};

/// A range on the keyboard, where the page begins with none.
void ScegliEstensione(Servizio& s, const PaginaFotografata& pagina) {
    if (s.Di(pagina.start).isVisible()) return;
    for (const char* tasto : {"lb12", "lb36"})
        s.Premi(tasto);
    Aspetta([&] { return s.Di(pagina.start).isVisible(); });
}

void AspettaScritta(Servizio& s, const char* nome, const char* scritta) {
    Aspetta([&] { return s.Stato(nome).Caption == scritta; });
}

/// In a run, first as it begins, then with an answer wrong and the right one shown.
void FotografaCorsa(Servizio& s, const PaginaFotografata& pagina, const QString& nome) {
    s.Premi(pagina.start);
    AspettaScritta(s, pagina.start, "Stop");
    s.Scatta(nome + QStringLiteral("-running"));
    if (pagina.aiuto) {
        s.Premi(pagina.aiuto);
        AspettaScritta(s, pagina.aiuto, "");
        s.Scatta(nome + QStringLiteral("-help"));
        s.Premi(pagina.aiuto);
        AspettaScritta(s, pagina.aiuto, "?");
    }
    s.Premi(pagina.start);
    AspettaScritta(s, pagina.start, "Start");
}

/// The ear trainer's pages, one after the other in the open window.
void FotografaOrecchio(Servizio& s) {
    s.Scegli("mnuRac");
    s.Attendi(QStringLiteral("frmInto"));
    for (const PaginaFotografata& pagina :
         {PaginaFotografata{"mnuNotA", "frmInto2", "IntoStart", "lblIntoSh"},
          {"mnuRint", "FrmIntervalli", "CmdIntStart", "lblIntSh"},
          {"mnuRicTa", "frmRacc", "ComdRacStart", nullptr},
          {"mnuRicTasto", "frmRicTasto", "cmdRicTasto", nullptr},
          {"mnuRicTo", "frmTo", "cmdT", "lblTsh"}}) {
        s.Scegli(pagina.voce);
        Aspetta([&] { return s.Stato(pagina.cornice).Visible; });
        const QString nome = QStringLiteral("frmInto-") + QString::fromLatin1(pagina.cornice);
        s.Scatta(nome);
        if (pagina.cornice != QLatin1String("frmRicTasto")) ScegliEstensione(s, pagina);
        FotografaCorsa(s, pagina, nome);
    }
    s.Chiudi();
}

/// The reference chart's pages; of the second one the keys with most accidentals too, and the
/// degrees.
void FotografaPromemoria(Servizio& s) {
    s.Scegli("mnuPromemoria");
    s.Attendi(QStringLiteral("frmOptions"));
    s.Scatta(QStringLiteral("frmOptions-1"));
    s.Premi("cmdSel1");
    Aspetta([&] { return s.Stato("Frame12").Visible; });
    s.Scatta(QStringLiteral("frmOptions-2"));
    for (const auto& [ton, mostrato] :
         {std::pair{"Ton8", "Img8"}, {"Ton15", "Img15"}, {"Ton16", "Gradi"}}) {
        s.Premi(ton);
        Aspetta([&, m = mostrato] { return s.Stato(m).Visible; });
        s.Scatta(QStringLiteral("frmOptions-2-") + QLatin1String(mostrato));
    }
    s.Premi("cmdSel2");
    Aspetta([&] { return s.Stato("Frame13").Visible; });
    s.Scatta(QStringLiteral("frmOptions-3"));
    s.Chiudi();
}

/// The five-octave keyboard, which no window of the program shows alone.
void FotografaTastiera(const QString& cartella, double volte) {
    PalcoTastiera palco;
    Servizio servizio(palco.scrivania, cartella, volte);
    servizio.Scatta(QStringLiteral("keyboard"));
    palco.NellaLogica([](FormTastiera& form) {
        for (const std::int16_t nota : std::array<std::int16_t, 6>{48, 52, 55, 58, 61, 72})
            form.tastiera.sw(nota, 1);
        for (const std::size_t barra : {12, 25, 36, 46})
            Accendi(form.tastiera.lbr[barra], true);
    });
    Trova(palco.scrivania, "img2").setFocus(Qt::TabFocusReason);
    servizio.Scatta(QStringLiteral("keyboard-lit"));
}

}  // namespace

int main(int argc, char** argv) {
    Applicazione applicazione(argc, argv);
    const QString cartella = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(cartella);
    const QTemporaryDir stato;
    Macchina macchina = MacchinaMuta(QString::fromLocal8Bit(argv[2]), stato);
    FileInMemoria file;
    DaiCasa(file, macchina, QString::fromLocal8Bit(argv[2]));
    RiempiSupporto(file);
    Scrivania& scrivania = applicazione.LaScrivania();
    scrivania.Avvia([&] { LogicaDelProgramma(applicazione, macchina); });
    AspettaFinestra(scrivania, "CorvanaMainF");
    Servizio servizio(scrivania, cartella, argc > 3 ? std::atof(argv[3]) : 1);
    struct Lingua {
        const char *voce, *nomi, *suoNome;  ///< its entry says so once the language is in use
    };
    for (const Lingua& lingua :
         {Lingua{"mnuIt", "it-", "Italiano"}, Lingua{"mnuEn", "en-", "English"}}) {
        servizio.PonLingua(QString::fromLatin1(lingua.nomi));
        servizio.Pronto();
        servizio.Scegli(lingua.voce);
        AspettaScritta(servizio, lingua.voce, lingua.suoNome);
        FotografaTutto(servizio);
        FotografaBattito(servizio);
        FotografaSecondarie(servizio);
        FotografaOrecchio(servizio);
        FotografaComposer(scrivania, [&](const QString& nome) { servizio.Scatta(nome); });
        FotografaPromemoria(servizio);
    }
    scrivania.Termina();
    FotografaTastiera(cartella, argc > 3 ? std::atof(argv[3]) : 1);
    return 0;
}
