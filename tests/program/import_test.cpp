// The import of melodies within the program: how its window is opened, left and opened again.
#include <gtest/gtest.h>

#include "composer/composer.h"
#include "composer/copy_from_a.h"
#include "tests/program/program_rig.h"

namespace corvana::prova {

namespace {

struct BancoImportazione : BancoProgramma {
    BancoImportazione() {
        file.supportoRimovibile = "/medium/";
        file.contenuti["/medium/a.mel"] = "60;\r\n1;\r\nn;\r\n 60 \r\n 16 \r\n";
        Clicca(3, "mnuComposer");
        Quando(4, [this] { composer = dynamic_cast<frmComposer*>(finestre.Davanti()); });
    }
    frmComposer* composer = nullptr;
    frmCopyFromA& Importa() { return dynamic_cast<frmCopyFromA&>(*finestre.Davanti()); }
    bool ComposerDavanti() const { return finestre.Davanti() == composer; }
};

}  // namespace

TEST(ImportaNelProgramma, BothMenusOpenItAnewEachTime) {
    for (const char* voce : {"mnuCopyFromA", "mnucCopyFromA"}) {
        BancoImportazione b;
        for (const double t : {5.0, 7.0}) {
            b.Clicca(t, voce);
            b.Quando(t + 0.5, [&] {
                ASSERT_EQ(b.finestre.Davanti()->Name, "frmCopyFromA") << voce;
                EXPECT_EQ(b.Importa().List1.List(), Righe{"a"});
                EXPECT_EQ(b.Importa().Left(), b.composer->Left() + 500);
                EXPECT_EQ(b.Importa().Top(), b.composer->Top() + 500);
            });
            b.Clicca(t + 1, "cmdChiudi");
            b.Quando(t + 1.5, [&] { EXPECT_TRUE(b.ComposerDavanti()); });
        }
        EXPECT_TRUE(b.Vai(9));
        EXPECT_EQ(b.specchio.mostrate.back(), "modal frmCopyFromA");
    }
}

TEST(ImportaNelProgramma, F1InItOpensItsPage) {
    BancoImportazione b;
    b.Clicca(5, "mnuCopyFromA");
    b.Tasto(6, vk::f1);
    EXPECT_TRUE(b.Vai(7));
    ASSERT_EQ(b.specchio.aiuti.size(), 1U);
    EXPECT_TRUE(b.specchio.aiuti[0].starts_with("67 "));
}

TEST(ImportaNelProgramma, NeitherMenuOpensItWhileAMelodyPlays) {
    BancoImportazione b;
    b.Clicca(5, "cmdInsNota");
    b.Clicca(7, "chekLoop", 1);
    b.Clicca(7.5, "cmdPlay");
    for (const char* voce : {"mnuCopyFromA", "mnucCopyFromA"})
        b.Quando(8, [&b, voce] {
            EXPECT_FALSE(b.composer->Trova(voce)->Utilizzabile()) << voce;
            b.coda.Aggiungi(b.Fatta({}, voce));
        });
    b.Quando(9, [&] {
        EXPECT_TRUE(b.composer->stato.inEsecuzione);
        EXPECT_TRUE(b.ComposerDavanti());
    });
    b.Clicca(10, "cmdPlay");
    b.Clicca(11, "mnucCopyFromA");
    b.Quando(12, [&] { EXPECT_FALSE(b.ComposerDavanti()); });
    EXPECT_TRUE(b.Vai(13));
}

TEST(ImportaNelProgramma, WhatWasCopiedIsInTheMelodyWindowsListAndPlays) {
    BancoImportazione b;
    b.Quando(4.5, [&] { b.globali.percorsoCorrente = "/home/mine/"; });
    b.Clicca(5, "mnuCopyFromA");
    Evento scelta;
    scelta.scelte = {0};
    b.Manda(6, scelta, "List1");
    b.Clicca(6.5, "cmdCopia");
    b.Clicca(7, "cmdChiudi");
    b.Clicca(8, "mnuApri");
    b.Quando(8.5, [&] { EXPECT_EQ(b.composer->archivio.List1.List(), (Righe{"» ..", "a"})); });
    b.Clicca(9, "List1", 1);
    b.Clicca(9.2, "cmdEseguiFile");
    b.Quando(9.5, [&] { EXPECT_TRUE(b.composer->stato.inEsecuzione); });
    EXPECT_TRUE(b.Vai(12));
    EXPECT_EQ(b.file.contenuti["/home/mine/a.mel"], b.file.contenuti["/medium/a.mel"]);
}

TEST(ImportaNelProgramma, TheEndOfTheProgramClosesAllWindowsAtOnce) {
    BancoImportazione b;
    b.Clicca(5, "mnuCopyFromA");
    b.Quando(6, [&] { b.coda.ChiediFine(); });
    EXPECT_FALSE(b.Vai(100));
    EXPECT_DOUBLE_EQ(b.orologio.Adesso(), 6);
    EXPECT_EQ(b.specchio.chiuse,
              (std::vector<std::string>{"frmCopyFromA", "frmComposer", "CorvanaMainF"}));
}

TEST(ImportaNelProgramma, OpenedDuringTheDelayBeforeAPlayItHoldsThatPlayBack) {
    BancoImportazione b;
    b.Clicca(5, "cmdInsNota");
    b.Clicca(7, "mnuPlayRitardo");
    b.Clicca(8.5, "mnuCopyFromA");
    b.Quando(20, [&] {
        ASSERT_EQ(b.finestre.Davanti()->Name, "frmCopyFromA");
        EXPECT_FALSE(b.composer->stato.inEsecuzione);
    });
    b.Clicca(21, "cmdChiudi");
    b.Quando(24.5, [&] { EXPECT_EQ(b.uscita.NoteAccese().size(), 1U) << "the delayed play"; });
    EXPECT_TRUE(b.Vai(30));
}

}  // namespace corvana::prova
