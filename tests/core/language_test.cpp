#include "core/language.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>

#include "tests/core/language_check.h"
#include "tests/support/rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

constexpr std::array bersagli = {
    Testo(0, "frmProva"), Testo(1, "cmdEsci"),      Testo(2, "noSuchControl"),
    Testo(3, "es"),       Riga(12, "difficolt", 0), Riga(20, "difficolt", 10),
};

struct FinestraTradotta : Form {
    FinestraTradotta() : Form("frmProva") { difficolt.List = Righe(11, "old"); }
    Etichetta cmdEsci{*this, "cmdEsci"};
    VoceMenu es{*this, "es"};
    Lista difficolt{*this, "difficolt"};
};

struct BancoLingua : Banco {
    FinestraTradotta finestra;

    BancoLingua() { globali.PercorsoLingua = "/programma/langit.csv"; }
    void Applica(const std::string& contenuto) {
        file.contenuti[globali.PercorsoLingua] = contenuto;
        UpdateString(Tutto(), finestra, bersagli);
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

TEST(UpdateString, AnEmptyLineIsAReadErrorEvenWhenThereIsNoOther) {
    for (const char* contenuto : {"\n", "\r\n", "\n\n", "0;frmProva;x\n\n"}) {
        BancoLingua b;
        b.Applica(contenuto);
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto}) << contenuto;
    }
}

TEST(UpdateString, ARowIsForTheWindowOfItsNameWhateverTheCase) {
    BancoLingua b;
    b.Applica("0;FRMprova;titolo\n1;frmPROVA;Esci\n3;frmAbout;no\n3;frmProv;no\n");
    EXPECT_EQ(b.finestra.Caption(), "titolo");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Esci");
    EXPECT_EQ(b.finestra.es.Caption(), "");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(UpdateString, AnIdWithoutATargetIsIgnored) {
    BancoLingua b;
    b.Applica("4;frmProva;x\n27;frmProva;y\n-5;frmProva;z\n30000;frmProva;w\n");
    EXPECT_EQ(b.finestra.es.Caption(), "");
    EXPECT_EQ(b.finestra.difficolt.List(), Righe(11, "old"));
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(UpdateString, AWindowWithoutTargetsTakesNothing) {
    BancoLingua b;
    b.file.contenuti[b.globali.PercorsoLingua] = "1;frmProva;x\n";
    UpdateString(b.Tutto(), b.finestra, {});
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(UpdateString, TheTextGoesInAsItStandsAndAFourthFieldIsIgnored) {
    BancoLingua b;
    b.Applica("1;frmProva;  Esci, \"qui\"  ;x;y\n3;frmProva;\n");
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "  Esci, \"qui\"  ");
    EXPECT_EQ(b.finestra.es.Caption(), "");
    EXPECT_TRUE(b.riquadri.messaggi.empty());
}

TEST(UpdateString, LinesMayEndInEitherWayAndTheLastNeedNot) {
    for (const char* contenuto : {"1;frmProva;a\r\n3;frmProva;b\r\n",
                                  "1;frmProva;a\n3;frmProva;b\n", "1;frmProva;a\r\n3;frmProva;b"}) {
        BancoLingua b;
        b.Applica(contenuto);
        EXPECT_EQ(b.finestra.cmdEsci.Caption(), "a");
        EXPECT_EQ(b.finestra.es.Caption(), "b");
        EXPECT_TRUE(b.riquadri.messaggi.empty());
    }
}

TEST(UpdateString, AMissingFileShowsTheReadError) {
    BancoLingua b;
    UpdateString(b.Tutto(), b.finestra, bersagli);
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto});
}

TEST(UpdateString, AFileThatCantBeReadShowsTheReadError) {
    BancoLingua b;
    b.file.erroreLeggi = EIO;
    b.Applica("1;frmProva;a\n");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto});
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "");
}

TEST(UpdateString, ALineOfTooFewFieldsEndsTheReadingAndWhatWasAppliedStays) {
    for (const char* breve : {"nothing", "", "2;frmProva", "5"}) {
        BancoLingua b;
        b.Applica(std::string("1;frmProva;a\n") + breve + "\n3;frmProva;b\n");
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto}) << breve;
        EXPECT_EQ(b.finestra.cmdEsci.Caption(), "a") << breve;
        EXPECT_EQ(b.finestra.es.Caption(), "") << breve;
    }
}

TEST(UpdateString, AnIdThatIsNoNumberIsAReadError) {
    for (const char* id : {"x", "", "1.5", "99999999999999999999"}) {
        BancoLingua b;
        b.Applica(std::string(id) + ";frmProva;a\n");
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto}) << id;
    }
}

TEST(UpdateString, AZeroByteInATextDoesNoHarm) {
    BancoLingua b;
    b.Applica(std::string("1;frmProva;a\0b\n3;frmProva;c\n", 28));
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
    b.Applica("12;frmProva;prima\n20;frmProva;ultima\n");
    EXPECT_EQ(b.finestra.difficolt.List().front(), "prima");
    EXPECT_EQ(b.finestra.difficolt.List().back(), "ultima");
    EXPECT_EQ(b.finestra.difficolt.ListIndex(), 3);
}

TEST(UpdateString, ATargetThatTheWindowHasntIsPassedOver) {
    BancoLingua b;
    b.Applica("2;frmProva;no such control\n1;frmProva;a\n");
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
    b.Applica("1;frmProva;" + testo);
    RC_ASSERT(b.finestra.cmdEsci.Caption() == testo);
}

TEST(UpdateString, AFileFarTooLongIsToldAndNothingOfItIsApplied) {
    BancoLingua b;
    b.Applica("1;frmProva;Esci\n" + std::string(limiteTesti, '\n'));
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{guasto});
    std::string lungo = "1;frmProva;Esci\n";
    while (lungo.size() + 20 < limiteTesti)
        lungo += "9999;frmAbout;text\n";
    b.Applica(lungo);
    EXPECT_EQ(b.finestra.cmdEsci.Caption(), "Esci");
    EXPECT_EQ(b.riquadri.messaggi.size(), 1U);
}

RC_GTEST_PROP(UpdateString, AnyBytesAreReadAsFarAsTheyAreRows, (std::string byte)) {
    RC_ASSERT(ControllaLingua(byte) == "");
    for (char& c : byte)
        c = "0123;frmLetta\r\n"[static_cast<unsigned char>(c) % 15];
    RC_ASSERT(ControllaLingua("1;frmLetta;a\n" + byte) == "");
}

}  // namespace corvana::prova
