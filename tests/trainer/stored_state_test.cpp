// What the window makes of the text that an earlier run, or somebody by hand, left in the store.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/trainer/main_window_rig.h"
#include "trainer/exercises.h"
#include "trainer/state.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

/// Loads the window over the text and looks at it when the opening signal is over.
struct BancoRipresa : BancoPrincipale {
    explicit BancoRipresa(const std::string& stato) {
        PonStato(stato);
        Fine(3);
        Avvia();
    }
};

/// Two of the three box texts that a bad field can raise.
const std::string nonNumero = "13\r\nType mismatch";
const std::string troppo = "6\r\nOverflow";

void EscePrimaRiga(const BancoRipresa& b, const std::string& stato) {
    EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), 0) << stato;
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 43) << stato;
    EXPECT_EQ(b.finestra.stato.LimiteAlto, 53) << stato;
    EXPECT_TRUE(b.finestra.esercizio.Start.Enabled()) << stato;
}

}  // namespace

TEST(Ripresa, AnEmptyTextGivesTheFirstRowAndNoBox) {
    const BancoRipresa b("");
    EscePrimaRiga(b, "");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.finestra.stato.Modo, "normale");
    EXPECT_EQ(b.globali.StrumentoGlobale, 16);
}

TEST(Ripresa, EachRowIsSelectedByItsLimits) {
    for (std::size_t i = 0; i < righeEsercizio.size(); ++i) {
        const RigaEsercizio& riga = righeEsercizio.at(i);
        if (!riga.limiteBasso) continue;
        const BancoRipresa b(ComponiStato({riga.limiteBasso, riga.limiteAlto, 16, 30, false}));
        EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), static_cast<int>(i));
        EXPECT_EQ(b.NoteInVista(), (std::vector<int>{riga.limiteBasso, riga.limiteAlto}));
    }
}

TEST(Ripresa, ARangeOfTheRulerIsShownAndTheListLeftAlone) {
    const BancoRipresa b("20;44;16;30;n");
    EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), -1);
    EXPECT_EQ(b.NoteInVista(), (std::vector<int>{20, 44}));
    EXPECT_EQ(b.finestra.stato.LimiteBasso, 20);
    EXPECT_EQ(b.finestra.intervalli.segni.PrimoClick, 0);
    EXPECT_TRUE(b.finestra.intervalli.CaricamentoLista);
}

TEST(Ripresa, TheInstrumentTheSpeedAndTheModeComeBack) {
    const BancoRipresa b("43;53;40;120;a");
    EXPECT_EQ(b.globali.StrumentoGlobale, 40);
    EXPECT_EQ(b.finestra.automatico.Slider1.Value(), 120);
    EXPECT_DOUBLE_EQ(b.finestra.stato.SecondiNota, 0.5);
    EXPECT_EQ(b.finestra.stato.Modo, "automatico");
    EXPECT_TRUE(b.finestra.automatico.Slider1.Visible());
    EXPECT_TRUE(b.finestra.menu.mnuAutomatico.Checked());
    EXPECT_FALSE(b.finestra.menu.mnuNormale.Checked());
    EXPECT_EQ(b.uscita.ConStato(0xC0), (std::vector<std::pair<int, int>>{{40, 0}}));
}

TEST(Ripresa, AFieldThatIsNoNumberShowsTheFaultAndGivesTheFirstRow) {
    for (const char* stato : {"x;53;16;30;n", "43;;16;30;n", "20;44;y;30;n", "20;44;16;z;n",
                              "20;44;16", "20;44", ";;;;", "a;b;c;d;e"}) {
        const BancoRipresa b(stato);
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{nonNumero}) << stato;
        EscePrimaRiga(b, stato);
    }
}

TEST(Ripresa, ANumberThatDoesntFitShowsTheFaultAndGivesTheFirstRow) {
    for (const char* stato : {"-5;53;16;30;n", "11;300;16;30;n", "43;99999999999999999999;16;30;n",
                              "20;44;99999999999;30;n"}) {
        const BancoRipresa b(stato);
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{troppo}) << stato;
        EscePrimaRiga(b, stato);
    }
}

TEST(Ripresa, ASingleFieldHoldsNoStateAndIsNoFault) {
    const BancoRipresa b("20");
    EscePrimaRiga(b, "20");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(Ripresa, ARangeWithoutAPositionGivesTheFirstRow) {
    for (const char* stato : {"32;39;16;30;n", "33;34;16;30;n", "50;20;16;30;n", "65;255;16;30;n",
                              "0;0;16;30;n", "10;64;16;30;n", "11;11;16;30;n", "5;10;16;30;n"}) {
        const BancoRipresa b(stato);
        EscePrimaRiga(b, stato);
        EXPECT_TRUE(b.riquadri.messaggi.empty()) << stato;
    }
}

TEST(Ripresa, ASpeedBeyondTheSliderIsClamped) {
    const std::vector<std::pair<std::string, int>> casi = {{"43;53;16;5;n", 20},
                                                           {"43;53;16;-2000000000;n", 20},
                                                           {"43;53;16;141;n", 140},
                                                           {"43;53;16;2147483647;n", 140},
                                                           {"43;53;16;0;n", 20}};
    for (const auto& [stato, valore] : casi) {
        const BancoRipresa b(stato);
        EXPECT_EQ(b.finestra.automatico.Slider1.Value(), valore) << stato;
        EXPECT_DOUBLE_EQ(b.finestra.stato.SecondiNota, 60.0 / valore) << stato;
    }
}

TEST(Ripresa, AnInstrumentBeyondTheListIsTakenAndStoredAs16) {
    for (const char* stato : {"43;53;200;30;n", "43;53;-7;30;n", "43;53;2147483647;30;n"}) {
        BancoPrincipale b;
        b.PonStato(stato);
        b.Chiudi(3);
        EXPECT_FALSE(b.Avvia());
        EXPECT_EQ(b.Stato(), "43;53;16;30;n") << stato;
        EXPECT_TRUE(b.riquadri.messaggi.empty()) << stato;
    }
}

TEST(Ripresa, AnAbsentValueShowsItsBoxAndGivesTheFirstRow) {
    BancoPrincipale b;
    b.file.contenuti[Banco::percorsoImpostazioni] = "Language=it\n";
    b.Fine(3);
    b.Avvia();
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"Error2 Querying key: 2"});
    EXPECT_EQ(b.finestra.intervalli.difficolt.ListIndex(), 0);
}

/// Any stored text leads to a window in which fifty notes are drawn and that closes.
void EUsabile(const std::string& stato) {
    BancoPrincipale b;
    CasualeFisso casuale;
    CorvanaMainF finestra(b.Con(casuale), {});
    b.PonStato(stato);
    b.Clicca(3, "Start");
    b.Quando(4, [&] {
        for (int i = 0; i < 50; ++i)
            finestra.esercizio.Mostranota();
    });
    b.Chiudi(5);
    const bool svolta = b.SvolgiCopione([&] {
        b.finestre.Mostra(finestra);
        b.finestre.FinoAllUltima();
    });
    RC_ASSERT(!svolta);
    RC_ASSERT(b.suono.HandleMidi == 0);
    RC_ASSERT(LeggiStato(b.Stato()).has_value());
}

RC_GTEST_PROP(Ripresa, AnyTextLeadsToAUsableWindow, (const std::string& stato)) {
    EUsabile(stato);
}

RC_GTEST_PROP(Ripresa, AnyNumbersLeadToAUsableWindow, ()) {
    const auto numero = rc::gen::oneOf(rc::gen::inRange(-3, 70), rc::gen::inRange(-300, 300),
                                       rc::gen::arbitrary<int>());
    std::string stato;
    for (int i = *rc::gen::inRange(1, 5); i > 0; --i)
        stato += std::to_string(*numero) + ";";
    EUsabile(stato + *rc::gen::element<std::string>("n", "a", ""));
}

}  // namespace corvana::prova
