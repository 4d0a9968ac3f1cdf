#include <gtest/gtest.h>
#include <signal.h>

#include <fstream>

#include "tests/outputs/process.h"

namespace corvana {
namespace {

using prova::AspettaInCartella;
using prova::CartellaPropria;
using prova::Processo;

constexpr const char* pausa = "exec tail -f /dev/null";

TEST(Processo, ItsEndIsWaitedForAndItsResultKept) {
    Processo breve({{"sh", "-c", "exit 7"}});
    EXPECT_TRUE(breve.AspettaFine(60));
    EXPECT_FALSE(breve.Vivo());
    EXPECT_EQ(breve.EsitoFinale(), 7);
}

TEST(Processo, WhileItLivesItIsntAtItsEnd) {
    Processo lungo({{"sh", "-c", pausa}});
    EXPECT_TRUE(lungo.Vivo());
    EXPECT_FALSE(lungo.AspettaFine(0.01));
    lungo.Segnala(SIGKILL);
    EXPECT_EQ(lungo.EsitoFinale(), -1);
}

TEST(Processo, OneThatIsStoppedIsEndedToo) {
    Processo fermo({{"sh", "-c", pausa}});
    fermo.Segnala(SIGSTOP);
    fermo.Termina();
    EXPECT_FALSE(fermo.Vivo());
}

TEST(AspettaInCartella, WhatAProgramWritesIsSeenWhenItIsWritten) {
    const CartellaPropria cartella;
    const auto file = cartella.Percorso() / "file";
    const Processo scrittore({{"sh", "-c", "echo uno; echo due; " + std::string(pausa)}, {}, file});
    std::string riga;
    EXPECT_TRUE(AspettaInCartella(cartella.Percorso(), scrittore, [&] {
        std::ifstream righe(file);
        while (std::getline(righe, riga) && riga != "due") {}
        return riga == "due";
    }));
}

TEST(AspettaInCartella, WhatHoldsAlreadyIsntWaitedFor) {
    const CartellaPropria cartella;
    const Processo muto({{"sh", "-c", pausa}});
    EXPECT_TRUE(AspettaInCartella(
        cartella.Percorso(), muto, [] { return true; }, 0));
}

TEST(AspettaInCartella, ItEndsWithTheProgramThatShouldWrite) {
    const CartellaPropria cartella;
    const Processo breve({{"sh", "-c", "exit 0"}});
    EXPECT_FALSE(AspettaInCartella(
        cartella.Percorso(), breve, [] { return false; }, 1e6));
}

TEST(AspettaInCartella, TheLastThatAProgramWroteCounts) {
    const CartellaPropria cartella;
    const auto file = cartella.Percorso() / "file";
    const Processo breve({{"sh", "-c", "echo uno"}, {}, file});
    EXPECT_TRUE(breve.AspettaFine(60));
    EXPECT_TRUE(AspettaInCartella(cartella.Percorso(), breve,
                                  [&] { return std::filesystem::file_size(file) == 4; }));
}

TEST(AspettaInCartella, ItGivesUpAfterItsTime) {
    const CartellaPropria cartella;
    const Processo muto({{"sh", "-c", pausa}});
    EXPECT_FALSE(AspettaInCartella(
        cartella.Percorso(), muto, [] { return false; }, 0.01));
}

}  // namespace
}  // namespace corvana
