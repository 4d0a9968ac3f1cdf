// A melody that an earlier run left unsaved is there again when the window opens.
#include <gtest/gtest.h>

#include "melody/numbers.h"
#include "tests/composer/hand_rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

/// Three voices, the metronome on, two bookmarks, a name.
MelodiaTenuta Rimasta() {
    MelodiaTenuta m;
    m.voci[soprano] = {"60;62;64;", "1;0.5;0.5;", "n;s;n;", 40};
    m.voci[contralto].strumento = 41;
    m.voci[tenore] = {"48;", "2;", "a;", 42};
    m.voci[basso] = {"36;38;", "1;1;", "n;n;", 43};
    m.tempo = 144;
    m.metroAttivo = true;
    m.pulsazioni = "7";
    m.durataPulsazioni = "8";
    m.inizioPuls = 5;
    m.nome = "canto";
    m.nomeMostrato = "Salvato: canto";
    m.cartella = "/programma/Melodie/Demo/";
    m.riferimenti = {"1 ÷ 3 ÷Tutta", "2 ÷ 3 ÷ fine"};
    return m;
}

struct BancoRipreso : BancoAMano {
    explicit BancoRipreso(const MelodiaTenuta& rimasta, char separatore = '.')
        : BancoAMano(Rimasto{ScriviTenuta(rimasta)}, separatore) {}
    const frmComposer& F() const { return finestra; }
    MelodiaTenuta Copia() const { return *LeggiTenuta(*custode.Contenuto()); }
};

std::string Ripetuto(const std::string& token, int volte) {
    std::string testo;
    for (int i = 0; i < volte; ++i)
        testo += token;
    return testo;
}

}  // namespace

TEST(MelodiaRipresa, WhatWasLeftIsThereAgainMarkedAsModifiedUnderItsName) {
    BancoRipreso b(Rimasta());
    EXPECT_TRUE(b.Modificata());
    EXPECT_EQ(b.Testi(soprano), (TestiVoce{"60;62;64;", "1;0.5;0.5;", "n;s;n;"}));
    EXPECT_EQ(b.Testi(contralto), (TestiVoce{"", "", ""}));
    EXPECT_EQ(b.Testi(tenore), (TestiVoce{"48;", "2;", "a;"}));
    EXPECT_EQ(b.Testi(basso), (TestiVoce{"36;38;", "1;1;", "n;n;"}));
    EXPECT_EQ(b.melodia.nomeMelodia, "canto");
    EXPECT_EQ(b.F().stato.lblNome.Caption(), "Salvato: canto");
    EXPECT_EQ(b.melodia.tempo, 144);
    EXPECT_EQ(b.F().play.Velocità.Caption(), "144");
    EXPECT_EQ(b.melodia.voceAttiva, "soprano");
}

TEST(MelodiaRipresa, NothingPlaysAndNothingIsTold) {
    BancoRipreso b(Rimasta());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_FALSE(b.F().stato.inEsecuzione);
    EXPECT_FALSE(b.melodia.inCaricamento);
    EXPECT_TRUE(b.uscita.NoteAccese().empty());
    for (const auto& [istante, messaggio] : b.uscita.messaggi)
        EXPECT_NE(messaggio & 0xF0U, 0x90U);
}

TEST(MelodiaRipresa, CountsRangesAndNamesAreThoseOfALoad) {
    BancoRipreso b(Rimasta());
    EXPECT_EQ(b.F().stato.lblNt.Caption(), "3");
    EXPECT_EQ(b.F().voci.lblNini.Text(), "1");
    EXPECT_EQ(b.F().voci.lblNfine.Text(), "3");
    EXPECT_EQ(b.F().voci.LblNoteString.Caption(), "Do;Re;Mi;");
    EXPECT_EQ(b.F().voci.lblNiniC.Text(), "");
    EXPECT_EQ(b.F().voci.lblNfineC.Text(), "");
    EXPECT_EQ(b.F().voci.lblNiniB.Text(), "1");
    EXPECT_EQ(b.F().voci.lblNfineB.Text(), "2");
    EXPECT_EQ(b.F().voci.LblNoteStringB.Caption(), "Do;Re;");
    EXPECT_EQ(b.melodia.voci[soprano].ultimaNota, 2);
    EXPECT_EQ(b.melodia.voci[basso].numeroNote, 2);
}

TEST(MelodiaRipresa, ItPlaysAndIsEditedAsItWas) {
    BancoRipreso b(Rimasta());
    b.Suona();
    EXPECT_FALSE(b.Messaggi(4).empty());
    b.Nota();
    EXPECT_EQ(b.Testi()[0], "60;62;64;60;");
}

TEST(MelodiaRipresa, ARangeOfItCanBePastedAtOnce) {
    BancoRipreso b(Rimasta());
    b.Tocca("cmdPaste");
    b.Tocca("cmdPaste");
    EXPECT_EQ(b.Testi()[0], "60;62;64;60;62;64;");
}

TEST(MelodiaRipresa, ItsInstrumentsAreSentAndShown) {
    BancoRipreso b(Rimasta());
    const auto mandati = b.Programmi();
    ASSERT_GE(mandati.size(), 4U);
    const std::vector<std::pair<int, int>> ultimi(mandati.end() - 4, mandati.end());
    EXPECT_EQ(ultimi, (std::vector<std::pair<int, int>>{{1, 40}, {2, 41}, {3, 42}, {4, 43}}));
    EXPECT_TRUE(b.F().mix.lblInstr[basso].Caption().starts_with("43-"));
}

TEST(MelodiaRipresa, TheMetronomeIsAsItWasOnOrOff) {
    for (const bool acceso : {false, true}) {
        MelodiaTenuta rimasta = Rimasta();
        rimasta.metroAttivo = acceso;
        BancoRipreso b(rimasta);
        EXPECT_EQ(b.F().pulsi.battuta.metroAttivo, acceso);
        EXPECT_EQ(b.F().pulsi.lblTs.Caption(), acceso ? "On" : "Off");
        EXPECT_EQ(b.F().pulsi.frMetro.Visible(), acceso);
        EXPECT_EQ(b.F().pulsi.Pulsazioni.Text(), "7");
        EXPECT_EQ(b.F().pulsi.DurataPulsazioni.Text(), "8");
        EXPECT_EQ(b.F().pulsi.InizioPuls.Value(), 5);
    }
}

TEST(MelodiaRipresa, ItsBookmarksAreShownWhenThereAreSome) {
    MelodiaTenuta rimasta = Rimasta();
    BancoRipreso con(rimasta);
    EXPECT_EQ(con.F().riferimenti.lstBookMark.List(), rimasta.riferimenti);
    EXPECT_TRUE(con.F().riferimenti.frBookMark.Visible());
    rimasta.riferimenti.clear();
    BancoRipreso senza(rimasta);
    EXPECT_FALSE(senza.F().riferimenti.frBookMark.Visible());
}

TEST(MelodiaRipresa, ASaveGoesWhereItWouldHaveGoneAndLetsItGo) {
    BancoRipreso b(Rimasta());
    b.Tocca("mnuSalva");
    b.pompa.Attendi(0.1);
    EXPECT_TRUE(b.file.contenuti.contains("/programma/Melodie/Demo/canto.mel"));
    EXPECT_FALSE(b.Modificata());
    EXPECT_FALSE(b.custode.Contenuto());
}

TEST(MelodiaRipresa, AFolderThatIsGoneLeavesTheOneOfTheOpening) {
    MelodiaTenuta rimasta = Rimasta();
    rimasta.cartella = "/media/penna/";
    BancoRipreso b(rimasta);
    EXPECT_EQ(b.globali.percorsoCorrente, "/programma/Melodie/Demo/");
    EXPECT_EQ(b.melodia.nomeMelodia, "canto");
}

TEST(MelodiaRipresa, ItIsKeptUntilItIsSavedThoughNobodyTouchesIt) {
    BancoRipreso b(Rimasta());
    b.Figura(3);
    b.pompa.Attendi(0.1);
    EXPECT_EQ(b.custode.tenute, 0);
    EXPECT_TRUE(b.Copia() == Rimasta());
    b.riquadri.risposte = {true};
    EXPECT_TRUE(b.finestre.Scarica(b.finestra));
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"uscire?"});
    EXPECT_FALSE(b.custode.Contenuto());
}

TEST(MelodiaRipresa, AnOpeningAfterwardsFindsNothing) {
    BancoAMano b;
    EXPECT_FALSE(b.Modificata());
    EXPECT_TRUE(b.Testi()[0].empty());
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(MelodiaRipresa, TextsThatDontBelongTogetherComeBackAsTexts) {
    MelodiaTenuta rimasta = Rimasta();
    rimasta.voci[soprano] = {"60;xx;", "1;", "n;n;n;", 40};
    rimasta.voci[basso] = {"36", ";;", "?", -1};
    BancoRipreso b(rimasta);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.Testi(soprano), (TestiVoce{"60;xx;", "1;", "n;n;n;"}));
    EXPECT_EQ(b.Testi(basso), (TestiVoce{"36", ";;", "?"}));
    EXPECT_EQ(b.Testi(tenore)[0], "48;");
    EXPECT_EQ(b.F().voci.lblNfineT.Text(), "1");
    EXPECT_EQ(b.melodia.tempo, 144);
    EXPECT_EQ(b.melodia.voceAttiva, "soprano");
    EXPECT_TRUE(b.Modificata());
}

TEST(MelodiaRipresa, MoreNotesThanAVoiceMayHoldComeBackAsTexts) {
    MelodiaTenuta rimasta = Rimasta();
    rimasta.voci[soprano].note = Ripetuto("60;", 32'768);
    BancoRipreso b(rimasta);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.Testi()[0].size(), 3U * 32'768);
    EXPECT_EQ(b.melodia.nomeMelodia, "canto");
}

TEST(MelodiaRipresa, BookmarksOfAnEmptySopranoComeBack) {
    MelodiaTenuta rimasta = Rimasta();
    rimasta.voci[soprano] = {};
    BancoRipreso b(rimasta);
    EXPECT_EQ(b.F().riferimenti.lstBookMark.List(), rimasta.riferimenti);
}

TEST(MelodiaRipresa, AValueThatAControlCantHoldLeavesTheOthersAlone) {
    MelodiaTenuta rimasta = Rimasta();
    rimasta.tempo = 1000;
    rimasta.pulsazioni = "ten";
    BancoRipreso b(rimasta);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(b.melodia.tempo, 60);
    EXPECT_EQ(b.F().pulsi.Pulsazioni.Text(), "2");
    EXPECT_EQ(b.Testi()[0], "60;62;64;");
    EXPECT_TRUE(b.Modificata());
}

TEST(MelodiaRipresa, DurationsTakeTheSeparatorOfThisRun) {
    BancoRipreso b(Rimasta(), ',');
    EXPECT_EQ(b.Testi()[1], "1;0,5;0,5;");
}

TEST(MelodiaRipresa, WhatCantBeReadIsPutAsideAndToldOnceAndTheWindowIsEmpty) {
    BancoAMano b(BancoComposer::Rimasto{"rubbish"});
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"illeggibile\r\n/stato/da parte"});
    EXPECT_EQ(b.custode.daParte, "rubbish");
    EXPECT_FALSE(b.Modificata());
    EXPECT_TRUE(b.Testi()[0].empty());
    b.finestra.Form_Activate();
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
}

TEST(MelodiaRipresa, WhatCanNeitherBeReadNorPutAsideIsPassedOverInSilence) {
    struct BancoFermo : BancoAMano {
        BancoFermo() { custode.inamovibile = true; }
    };
    BancoFermo b;
    for (const int errore : {0, EIO, EACCES}) {
        b.custode.erroreRitrova = errore;
        b.custode.rimasto = "rubbish";
        b.finestra.Form_Load();
        b.finestra.Form_Activate();
        EXPECT_TRUE(b.riquadri.messaggi.empty()) << errore;
        EXPECT_FALSE(b.Modificata()) << errore;
    }
}

}  // namespace corvana::prova
