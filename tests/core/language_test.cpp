#include "core/language.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

/// A window under the name of one that has rows, with a few of their targets.
struct FinestraTradotta : Form {
    explicit FinestraTradotta(std::string nome) : Form(std::move(nome)) {
        difficolt.List = Righe(11, "old");
    }
    Etichetta cmdEsci{*this, "cmdEsci"};
    VoceMenu es{*this, "es"};
    Lista difficolt{*this, "difficolt"};
};

struct BancoLingua : Banco {
    FinestraTradotta finestra{"CorvanaMainF"};

    BancoLingua() { globali.PercorsoLingua = "/programma/langit.csv"; }
    void Applica(const std::string& contenuto) {
        file.contenuti[globali.PercorsoLingua] = contenuto;
        UpdateString(Tutto(), finestra);
    }
};

const std::string guasto = "Error Reading file!!!";

}  // namespace

TEST(FileLingua, ExistsWhenThePathNamesAFile) {
    BancoLingua b;
    EXPECT_FALSE(FileLinguaEsiste(b.Tutto()));
    b.file.contenuti[b.globali.PercorsoLingua] = "";
    EXPECT_TRUE(FileLinguaEsiste(b.Tutto()));
}

TEST(UpdateString, AnEmptyFileChangesNothing) {
    BancoLingua b;
    b.Applica("");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(UpdateString, ARowIsForTheWindowOfItsNameWhateverTheCase) {
    BancoLingua b;
    b.Applica("0;CORVANAmainf;titolo\n1;corvanaMainF;Esci\n3;frmAbout;no\n3;CorvanaMain;no\n");
    EXPECT_EQ(b.finestra.Caption(), "titolo");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Esci");
    EXPECT_EQ(b.finestra.es.Caption(), "");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(UpdateString, AnIdWithoutATargetInItsWindowIsIgnored) {
    BancoLingua b;
    FinestraTradotta about{"frmAbout"};
    b.file.contenuti[b.globali.PercorsoLingua] =
        "3;frmAbout;x\n27;frmAbout;y\n-5;frmAbout;z\n30000;frmAbout;w\n";
    UpdateString(b.Tutto(), about);
    EXPECT_EQ(about.es.Caption(), "");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(UpdateString, RowsOfAnUnknownWindowDoNothing) {
    BancoLingua b;
    FinestraTradotta ignota{"frmNiente"};
    b.file.contenuti[b.globali.PercorsoLingua] = "1;frmNiente;x\n";
    UpdateString(b.Tutto(), ignota);
    EXPECT_EQ(ignota.cmdEsci.Caption(), "");
}

TEST(UpdateString, TheTextGoesInAsItStandsAndAFourthFieldIsIgnored) {
    BancoLingua b;
    b.Applica("1;CorvanaMainF;  Esci, \"qui\"  ;x;y\n3;CorvanaMainF;\n");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "  Esci, \"qui\"  ");
    EXPECT_EQ(b.finestra.es.Caption(), "");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(UpdateString, LinesMayEndInEitherWayAndTheLastNeedNot) {
    for (const char* contenuto :
         {"1;CorvanaMainF;a\r\n3;CorvanaMainF;b\r\n", "1;CorvanaMainF;a\n3;CorvanaMainF;b\n",
          "1;CorvanaMainF;a\r\n3;CorvanaMainF;b"}) {
        BancoLingua b;
        b.Applica(contenuto);
        EXPECT_EQ(b.finestra.cmdEsci.Caption(), "a");
        EXPECT_EQ(b.finestra.es.Caption(), "b");
        EXPECT_TRUE(b.riquadri.messaggi.empty());
    }
}

TEST(UpdateString, AMissingFileShowsTheReadError) {
    BancoLingua b;
    UpdateString(b.Tutto(), b.finestra);
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto});
}

TEST(UpdateString, AFileThatCantBeReadShowsTheReadError) {
    BancoLingua b;
    b.file.erroreLeggi = EIO;
    b.Applica("1;CorvanaMainF;a\n");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto});
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "");
}

TEST(UpdateString, ALineOfTooFewFieldsEndsTheReadingAndWhatWasAppliedStays) {
    for (const char* breve : {"nothing", "", "2;CorvanaMainF", "5"}) {
        BancoLingua b;
        b.Applica(std::string("1;CorvanaMainF;a\n") + breve + "\n3;CorvanaMainF;b\n");
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto}) << breve;
        EXPECT_EQ(b.finestra.cmdEsci.Caption(), "a") << breve;
        EXPECT_EQ(b.finestra.es.Caption(), "") << breve;
    }
}

TEST(UpdateString, AnIdThatIsNoNumberIsAReadError) {
    for (const char* id : {"x", "", "1.5", "99999999999999999999"}) {
        BancoLingua b;
        b.Applica(std::string(id) + ";CorvanaMainF;a\n");
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto}) << id;
    }
}

TEST(UpdateString, AZeroByteInATextDoesNoHarm) {
    BancoLingua b;
    b.Applica(std::string("1;CorvanaMainF;a\0b\n3;CorvanaMainF;c\n", 36));
    EXPECT_EQ(b.finestra.es.Caption(), "c");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(UpdateString, TenMegabytesWithoutALineAreAReadError) {
    BancoLingua b;
    b.Applica(std::string(10'000'000, 'x'));
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto});
}

TEST(UpdateString, AListRowIsReplacedAndTheSelectionStays) {
    BancoLingua b;
    b.finestra.difficolt.ListIndex = 3;
    b.Applica("12;CorvanaMainF;prima\n20;CorvanaMainF;ultima\n");
    EXPECT_EQ(b.finestra.difficolt.List().front(), "prima");
    EXPECT_EQ(b.finestra.difficolt.List().back(), "ultima");
    EXPECT_EQ(b.finestra.difficolt.ListIndex(), 3);
}

TEST(UpdateString, ATargetThatTheWindowHasntIsPassedOver) {
    BancoLingua b;
    b.Applica("2;CorvanaMainF;no such control\n1;CorvanaMainF;a\n");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "a");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

RC_GTEST_PROP(UpdateString, AnyBytesGiveTheReadErrorOrNothing, (const std::string& contenuto)) {
    BancoLingua b;
    b.Applica(contenuto);
    RC_ASSERT(b.riquadri.messaggi.empty() || b.riquadri.messaggi == Avvisi{guasto});
}

RC_GTEST_PROP(UpdateString, AnyTextOfARowGoesInWhole, ()) {
    const auto testo = *rc::gen::container<std::string>(
        rc::gen::suchThat<char>([](char c) { return c != '\n' && c != '\r' && c != ';'; }));
    BancoLingua b;
    b.Applica("1;CorvanaMainF;" + testo);
    RC_ASSERT(b.finestra.cmdEsci.Caption() == testo);
}

TEST(UpdateString, AFileFarTooLongIsToldAndNothingOfItIsApplied) {
    BancoLingua b;
    b.Applica("1;CorvanaMainF;Esci\n" + std::string(limiteTesti, '\n'));
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto});
    std::string lungo = "1;CorvanaMainF;Esci\n";
    while (lungo.size() + 20 < limiteTesti)
        lungo += "9999;frmAbout;text\n";
    b.Applica(lungo);
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Esci");
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
}

}  // namespace corvana::prova
