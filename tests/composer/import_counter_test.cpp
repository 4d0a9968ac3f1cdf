// The rows of the import are counted in 8 bits.
#include <gtest/gtest.h>

#include "tests/composer/import_rig.h"

namespace corvana::prova {

namespace {

using Avvisi = std::vector<std::string>;

}  // namespace

TEST(Importa, AListOf256RowsIsCopiedWhole) {
    BancoImporta b;
    Riempi(b, 256);
    b.Apri();
    NumeriRiga tutte;
    for (int i = 0; i < 256; ++i)
        tutte.push_back(i);
    b.Copia(tutte);
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    EXPECT_EQ(Copiati(b), 256);
    EXPECT_EQ(b.elencata, 1);
}

TEST(Importa, AListOfMoreThan256RowsEndsInTheErrorStepWhenTheCounterOverflows) {
    for (const int righe : {257, 300, 1000}) {
        BancoImporta b;
        Riempi(b, righe);
        b.Apri();
        b.Copia({0, 200, 255, 256});
        EXPECT_EQ(b.riquadri.messaggi, Avvisi{"6\r\nOverflow"}) << righe;
        EXPECT_EQ(Copiati(b), 3) << "the rows up to the 256th";
        EXPECT_EQ(b.Copiato("m1255.mel"), "255");
        EXPECT_EQ(b.elencata, 0);
        EXPECT_EQ(b.importa.MousePointer(), puntatoreNormale);
        EXPECT_TRUE(b.finestre.Scarica(b.importa));
    }
}

TEST(Importa, InALongListAShortSelectionIsCopiedAndEndsInTheErrorStepAllTheSame) {
    BancoImporta b;
    Riempi(b, 257);
    b.Apri();
    b.Copia({3});
    EXPECT_EQ(b.Copiato("m1003.mel"), "3");
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"6\r\nOverflow"});
}

TEST(Importa, TheCounterOverflowsBeforeALateRowsMediumIsLookedFor) {
    BancoImporta b;
    Riempi(b, 257);
    b.Apri();
    b.file.supportoRimovibile.clear();
    b.Copia({256});
    EXPECT_EQ(b.riquadri.messaggi, Avvisi{"6\r\nOverflow"});
}

}  // namespace corvana::prova
