#include "core/startup.h"

#include <gtest/gtest.h>

#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

struct BancoAvvio : Banco {
    int mostrata = 0;
    bool Parti(bool altraIstanza = false) {
        return Main(Tutto(), altraIstanza, [this] { ++mostrata; });
    }
    void PonLinguaScelta(const std::string& lingua) {
        impostazioni.ScriviValore("Language", lingua);
    }
};

}  // namespace

TEST(Main, ASecondCopyShowsTheMessageAndEndsAtOnce) {
    BancoAvvio b;
    const auto prima = b.file.contenuti;
    EXPECT_FALSE(b.Parti(true));
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"The program is already running !!!"});
    EXPECT_EQ(b.mostrata, 0);
    EXPECT_EQ(b.globali.PercorsoLingua, "");
    EXPECT_EQ(b.file.contenuti, prima);
    EXPECT_TRUE(b.uscita.aperture.empty());
}

TEST(Main, EnglishGivesAngloNamesAndTheEnglishFiles) {
    BancoAvvio b;
    b.PonLinguaScelta("en");
    EXPECT_TRUE(b.Parti());
    EXPECT_TRUE(b.globali.NomiAnglo);
    EXPECT_EQ(b.globali.PercorsoLingua, "/programma/langen.csv");
    EXPECT_EQ(b.globali.FileAiuto, "/programma/corvanaen.chm");
}

TEST(Main, AnyOtherLanguageGivesTheItalianFilesAndLatinNames) {
    for (const char* lingua : {"it", "", "xx", "EN", " en", "english"}) {
        BancoAvvio b;
        b.PonLinguaScelta(lingua);
        EXPECT_TRUE(b.Parti()) << lingua;
        EXPECT_FALSE(b.globali.NomiAnglo) << lingua;
        EXPECT_EQ(b.globali.PercorsoLingua, "/programma/langit.csv") << lingua;
        EXPECT_EQ(b.globali.FileAiuto, "/programma/corvana.chm") << lingua;
        EXPECT_EQ(b.impostazioni.LeggiValore("Language"), lingua);
    }
}

TEST(Main, AFailedReadShowsItsBoxAndGivesItalian) {
    BancoAvvio b;
    b.file.contenuti.clear();
    EXPECT_TRUE(b.Parti());
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"Error1 Opening key: 2"});
    EXPECT_EQ(b.globali.PercorsoLingua, "/programma/langit.csv");
    EXPECT_EQ(b.mostrata, 1);
}

TEST(Main, AnAbsentValueShowsItsBoxAndGivesItalian) {
    BancoAvvio b;
    b.file.contenuti[Banco::percorsoImpostazioni] = "LastDir=\n";
    EXPECT_TRUE(b.Parti());
    EXPECT_EQ(b.riquadri.messaggi, std::vector<std::string>{"Error2 Querying key: 2"});
    EXPECT_FALSE(b.globali.NomiAnglo);
}

TEST(Main, TheCuesLieInTheirFolderBesideTheProgram) {
    BancoAvvio b;
    b.Parti();
    EXPECT_EQ(b.globali.PercorsoNote, "/programma/note/");
}

TEST(Main, AllIsSetWhenTheMainWindowIsShownOnce) {
    BancoAvvio b;
    b.PonLinguaScelta("en");
    std::string note, lingua;
    Main(b.Tutto(), false, [&] {
        note = b.globali.PercorsoNote;
        lingua = b.globali.PercorsoLingua;
    });
    EXPECT_EQ(note, "/programma/note/");
    EXPECT_EQ(lingua, "/programma/langen.csv");
}

TEST(PonLingua, PointsToTheFilesAndLeavesTheNoteNames) {
    Globali globali;
    globali.CartellaProgramma = "/x";
    PonLingua(globali, LinguaDi("en"));
    EXPECT_EQ(globali.PercorsoLingua, "/x/langen.csv");
    EXPECT_FALSE(globali.NomiAnglo);
    PonLingua(globali, LinguaDi("it"));
    EXPECT_EQ(globali.FileAiuto, "/x/corvana.chm");
}

TEST(Globali, StartWithTheOrganAndLatinNames) {
    const Globali globali;
    EXPECT_EQ(globali.StrumentoGlobale, 16);
    EXPECT_FALSE(globali.NomiAnglo);
    EXPECT_FALSE(globali.ComposerAperto);
    EXPECT_EQ(globali.ContestoInto, 0);
    EXPECT_EQ(globali.PaginaInto, (BandiereInto{}));
    EXPECT_EQ(globali.testi.TxtRisposteEsatte, "");
}

}  // namespace corvana::prova
