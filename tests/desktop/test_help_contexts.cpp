// Every window opens its page of the help, in both languages.
#include <QTextBrowser>

#include "tests/desktop/entries.h"

namespace corvana::prova {
namespace {

/// The page that F1 opens in the window in front.
struct Pagine : Voci {
    void Guarda(const char* finestra, const char* pagina) {
        v.Attendi(finestra);
        v.Batti(Qt::Key_F1);
        EXPECT_EQ(Pagina(), pagina) << finestra;
        if (!v.scrivania.Aiuto()) return;
        const QTextBrowser& testo = v.scrivania.Aiuto()->Testo();
        EXPECT_EQ(testo.source().path().contains("/corvanaen/"), inglese);
        EXPECT_FALSE(testo.documentTitle().isEmpty());
        constexpr int pienaPagina = 600;  // letters: no page is a stub
        EXPECT_GT(testo.toPlainText().size(), pienaPagina) << pagina;
        v.scrivania.Aiuto()->close();
        v.Calma();
        v.scrivania.Davanti()->Finestra().activateWindow();
        v.Attendi(finestra);
    }
    void GuardaTutte();
    bool inglese = false;
};

void Pagine::GuardaTutte() {
    const auto apri = [this](const char* voce, const char* finestra, const char* pagina) {
        v.Scegli(voce);
        Guarda(finestra, pagina);
        v.TornaA("CorvanaMainF");
    };
    Guarda("CorvanaMainF", "2.html");
    v.Scegli("mnuRac");
    for (const auto& [voce, pagina] : {std::pair{"mnuRicTa", "7.html"},
                                       {"mnuRint", "5.html"},
                                       {"mnuNotA", "3.html"},
                                       {"mnuRicTasto", "20.html"},
                                       {"mnuRicTo", "30.html"}}) {
        v.Attendi("frmInto");
        v.Scegli(voce);
        Guarda("frmInto", pagina);
    }
    v.TornaA("CorvanaMainF");
    apri("mnuPromemoria", "frmOptions", "50.html");
    v.Scegli("mnuComposer");
    Guarda("frmComposer", "60.html");
    v.Scegli("mnuCopyFromA");
    Guarda("frmCopyFromA", "67.html");
    v.TornaA("frmComposer");
    v.Tocca("pictCi");
    Guarda("frmStrum", "40.html");
    v.TornaA("frmComposer");
    v.TornaA("CorvanaMainF");
    apri("mnuSs", "frmStrum", "40.html");
    apri("mnuMidiTest", "frmMidiTest", "40.html");
    apri("mnuVersione", "frmAbout", "index.html");
    v.Scegli("mnuMetro");
    Guarda("CorvanaMainF", "8.html");
    v.Tocca("cmdSetup");
    Guarda("frmConfMetro", "8.html");
    v.TornaA("CorvanaMainF");
    v.Tocca("lblCloseMetro");
    Guarda("CorvanaMainF", "2.html");
}

TEST_F(Pagine, EachWindowOpensItsOwnInTheLanguageThatIsChosen) {
    GuardaTutte();
    v.Scegli("mnuEn");
    inglese = true;
    GuardaTutte();
}

}  // namespace
}  // namespace corvana::prova
