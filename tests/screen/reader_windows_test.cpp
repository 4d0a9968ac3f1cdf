// What a screen reader finds in each window, and what it is told.
#include <algorithm>
#include <array>
#include <cctype>
#include <regex>

#include "tests/screen/blind_user.h"

namespace corvana::prova {

namespace {

/// Roles that tell a user what to do with it.
const std::array ruoliSensati = {"push button",   "check box", "text",    "list",  "list item",
                                 "combo box",     "slider",    "graphic", "label", "menu item",
                                 "document text", "panel",     "grouping"};

bool DiceQualcosa(const std::string& nome) {
    return std::any_of(nome.begin(), nome.end(), [](unsigned char c) { return std::isalnum(c); });
}

/// What parts a list.
bool Divide(const Oggetto& oggetto) {
    return oggetto.ruolo == "list item" && oggetto.nome.find_first_not_of('-') == std::string::npos;
}

/// As the code calls things, or a picture's file.
bool NomeDaProgramma(const std::string& nome) {
    static const std::regex interno(
        R"((cmd|lbl|frm|fr|mnu|txt|Lst|Label|ToolButton|img|lb)[A-Z0-9]\w*|.*\.(svg|png).*|icona:.*)");
    return std::regex_match(nome, interno);
}

bool SiPreme(const std::string& ruolo) {
    return ruolo == "push button" || ruolo == "check box";
}

class Finestre : public Cieco {
protected:
    /// All of the window in front that the focus can come to; how many there are.
    static int Controlla() {
        int fuocabili = 0;
        const Oggetto finestra = Davanti();
        EXPECT_TRUE(DiceQualcosa(finestra.nome)) << "the window has no name";
        for (const Oggetto& oggetto : Lettore().Tutto(finestra)) {
            EXPECT_FALSE(NomeDaProgramma(oggetto.nome)) << oggetto.nome;
            if (!oggetto.Ha(stato::fuocabile) || Divide(oggetto)) continue;
            ++fuocabili;
            ControllaUno(oggetto);
        }
        return fuocabili;
    }
    /// The one that the key leads to, which `fatto` leaves again.
    static int Visita(const std::string& forma) {
        EXPECT_NE(Programma().AspettaFinestra(forma), 0U) << forma;
        Lettore().Aspetta([&] { return Davanti().percorso != principale_; });
        SCOPED_TRACE(forma);
        return Controlla();
    }
    static void Torna(const std::string& tasto) {
        Batti(tasto);
        EXPECT_TRUE(Lettore().Aspetta([] { return Davanti().percorso == principale_; })) << tasto;
    }
    static void Ricorda() { principale_ = Davanti().percorso; }

    static bool Sentito(const std::string& cosa, const std::string& nome, int valore) {
        return Lettore().Aspetta([&] {
            return std::any_of(
                Lettore().Notizie().begin(), Lettore().Notizie().end(), [&](const Notizia& n) {
                    return n.cosa == cosa && n.valore == valore && n.di.nome.starts_with(nome);
                });
        });
    }

private:
    static void ControllaUno(const Oggetto& oggetto) {
        const std::string chi = oggetto.ruolo + " '" + oggetto.nome + "'";
        EXPECT_TRUE(DiceQualcosa(oggetto.nome)) << chi << " " << oggetto.percorso;
        EXPECT_NE(std::find(ruoliSensati.begin(), ruoliSensati.end(), oggetto.ruolo),
                  ruoliSensati.end())
            << chi;
        const bool premibile = SiPreme(oggetto.ruolo) && oggetto.Ha(stato::abilitato);
        EXPECT_TRUE(!premibile || !Lettore().Azioni(oggetto).empty()) << chi;
        EXPECT_TRUE(oggetto.ruolo != "slider" || Lettore().Valore(oggetto) >= 0) << chi;
    }

    static inline std::string principale_;
};

}  // namespace

TEST_F(Finestre, AllThatTheFocusComesToHasANameARoleAndWhatItCanDo) {
    Ricorda();
    EXPECT_GT(Controlla(), 15);
    DalMenu("MIDI");
    EXPECT_GT(Visita("frmMidiTest"), 5);
    Torna("alt+F4");
    DalMenu("Promemoria");
    EXPECT_GT(Visita("frmOptions"), 3);
    Torna("alt+F4");
    DalMenu("Composizione");
    EXPECT_GT(Visita("frmComposer"), 70);
    Torna("alt+F4");
    DalMenu("Versione");
    EXPECT_GT(Visita("frmAbout"), 0);
    Torna("alt+F4");
    DalMenu("Riconoscimento intervallo");
    EXPECT_GT(Visita("frmInto"), 30);
    Torna("alt+F4");
}

TEST_F(Finestre, SoItIsInWhatOpensOverAWindow) {
    Ricorda();
    DalMenu("Scegli");
    EXPECT_GT(Visita("frmStrum"), 3);
    Torna("Escape");
    Batti("F1");
    EXPECT_GT(Visita("FinestraAiuto"), 0);
    const std::string pagina = Lettore().Testo(Trova("Lettura delle note"), 200);
    EXPECT_NE(pagina.find("Una nota compare"), pagina.npos) << pagina;
    Torna("Escape");
    DalMenu("Metronomo");
    VaiA("Scegli i suoni e la sequenza");
    Batti("space");
    EXPECT_GT(Visita("frmConfMetro"), 5);
    Torna("alt+F4");
    VaiA("Chiudi il metronomo");
    Batti("space");
    DalMenu("Composizione");
    ASSERT_NE(Programma().AspettaFinestra("frmComposer"), 0U);
    AspettaFuoco("Aggiungi la nota attiva");
    DalMenu("Copia da supporto");
    // That there is no medium.
    EXPECT_GT(Visita("riquadro"), 0);
    Batti("Return");
    AspettaFuoco("Chiudi");
    EXPECT_GT(Controlla(), 2);
    Batti("alt+F4");
    AspettaFuoco("Aggiungi la nota attiva");
    Torna("alt+F4");
}

TEST_F(Finestre, ChangesOfStateValueAndTextAreTold) {
    Lettore().Dimentica();
    VaiA("Start");
    Batti("space");
    EXPECT_TRUE(Sentito("enabled", "DO", 1));
    EXPECT_TRUE(Sentito("accessible-name", "Stop", 0));
    Batti("space");
    EXPECT_TRUE(Sentito("enabled", "DO", 0));
    DalMenu("Riconoscimento intervallo");
    ASSERT_NE(Programma().AspettaFinestra("frmInto"), 0U);
    // A strip that says which intervals are asked.
    VaiA("0");
    Muovi("Down");
    Muovi("Right");
    ASSERT_EQ(Lettore().Fuoco().ruolo, "check box");
    const bool prima = Lettore().Fuoco().Ha(stato::spuntato);
    Lettore().Aziona(Lettore().Fuoco());
    EXPECT_TRUE(Sentito("checked", Lettore().Fuoco().nome, prima ? 0 : 1));
    EXPECT_EQ(Lettore().Ora(Lettore().Fuoco()).Ha(stato::spuntato), !prima);
    VaiA("Rif. fisso ");
    const Oggetto slitta = Lettore().Fuoco();
    ASSERT_EQ(slitta.ruolo, "slider");
    const double valore = Lettore().Valore(slitta);
    Batti("Right");
    EXPECT_TRUE(Sentito("accessible-value", "Rif. fisso ", 0));
    EXPECT_EQ(Lettore().Valore(slitta), valore + 1);
    Batti("alt+F4");
    AspettaFuoco("Start");
    DalMenu("Composizione");
    ASSERT_NE(Programma().AspettaFinestra("frmComposer"), 0U);
    VaiA("Do 4");
    Batti("space");
    EXPECT_TRUE(Sentito("selected", "Do 4", 1));
    EXPECT_TRUE(Sentito("selected", "Do 4", 0));
    // The button beside the box is called so too.
    VaiA("Moltiplica la durata");
    Muovi("Tab");
    ASSERT_EQ(Lettore().Fuoco().ruolo, "text");
    Batti("7");
    EXPECT_TRUE(Sentito("insert", "Moltiplica la durata", 0));
    EXPECT_EQ(Lettore().Testo(Lettore().Fuoco()), "7");
    Batti("alt+F4");
    AspettaFuoco("Start");
}

TEST_F(Finestre, SoItIsOnEachPageOfTheEarTrainer) {
    Ricorda();
    // In this order no page is hidden by the one that was shown before; other tests would find one.
    for (const auto& [pagina, fermate] : {std::pair{"Riconoscimento altezza nota", 25},
                                          {"Riconoscimento tonalità", 45},
                                          {"Riconoscimento tasti", 15},
                                          {"Riconoscimento tipo accordo", 20}}) {
        DalMenu(pagina);
        EXPECT_GT(Visita("frmInto"), fermate) << pagina;
        Torna("alt+F4");
    }
}

}  // namespace corvana::prova
