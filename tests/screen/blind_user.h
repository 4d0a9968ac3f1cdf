// Someone who doesn't see the screen: has the keys of the keyboard, and a screen reader. One
// program for all tests of a suite, which each leave it as it was found. One thread.
#pragma once

#include <gtest/gtest.h>

#include "tests/screen/reader.h"
#include "tests/screen/real_program.h"

namespace corvana::prova {

class Cieco : public testing::Test {
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

    static LettoreSchermo& Lettore();
    static ProgrammaVero& Programma();
    static void Batti(const std::string& tasto) { Programma().schermo.Batti(tasto); }

    /// The window that has the keyboard; throws when there is none.
    static Oggetto Davanti();
    /// What is to be seen in that window under a name that begins so; throws when nothing is.
    static Oggetto Trova(const std::string& nome);
    /// The Tab key, until what is called so has the focus; throws when it never comes.
    static void VaiA(const std::string& nome);
    /// Waits until what is called so has it by itself.
    static void AspettaFuoco(const std::string& nome);
    /// A key, and what is told in answer.
    static std::string Ascolta(const std::string& tasto);
    /// The message that says so, sooner or later; empty when it never comes.
    static std::string Detto(const std::string& parole);
    /// Chooses the entry of the menus of the window in front that begins so.
    static void DalMenu(const std::string& voce);
    /// The focus comes to something else by that key; throws when it stays.
    static void Muovi(const std::string& tasto);
};

}  // namespace corvana::prova
