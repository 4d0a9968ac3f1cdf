#include "melody/names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace corvana::prova {

namespace {

using Caratteri = std::vector<std::string>;

/// What every set refuses.
const Caratteri dappertutto = {",", ".", ";", ":", "|", "\\", "/", "!", "%", "&",
                               "(", ")", "=", "'", "^", "+",  "*", "°", "<", ">"};
const Caratteri mai = {"\"", " ", "_", "@", "#", "$", "[", "]", "{", "}",  "~", "`", "à", "ò",
                       "É",  "÷", "·", "¨", "Â", "€", "—", "♯", "£", "\t", "0", "9", "A", "z"};

struct Insieme {
    const char* di;
    std::string_view rifiutati;
    Caratteri anche;      ///< refused besides
    Caratteri accettati;  ///< that another set refuses
};
const std::vector<Insieme> insiemi = {
    {"melody", rifiutatiMelodia, {"-", "§", "?"}, {}},
    {"new name of a melody", rifiutatiNuovoNome, {"-", "§"}, {"?"}},
    {"folder", rifiutatiCartella, {"-", "?"}, {"§"}},
    {"bookmark", rifiutatiRiferimento, {"§"}, {"-", "?"}},
};

Caratteri Rifiutati(const Insieme& insieme) {
    Caratteri tutti = dappertutto;
    tutti.insert(tutti.end(), insieme.anche.begin(), insieme.anche.end());
    return tutti;
}

}  // namespace

TEST(NomeRifiutato, EachCharacterOfASetIsRefusedWhereverItStands) {
    for (const Insieme& insieme : insiemi)
        for (const std::string& c : Rifiutati(insieme))
            for (const std::string& nome : {c, c + "aria", "ar" + c + "ia", "aria" + c, "à" + c})
                EXPECT_TRUE(NomeRifiutato(nome, insieme.rifiutati)) << insieme.di << ": " << nome;
}

TEST(NomeRifiutato, ASetAcceptsWhatOnlyTheOthersRefuse) {
    for (const Insieme& insieme : insiemi)
        for (const std::string& c : insieme.accettati)
            EXPECT_FALSE(NomeRifiutato("ar" + c + "ia", insieme.rifiutati))
                << insieme.di << ": " << c;
}

TEST(NomeRifiutato, EveryOtherCharacterIsAccepted) {
    for (const Insieme& insieme : insiemi)
        for (const std::string& c : mai)
            EXPECT_FALSE(NomeRifiutato("ar" + c + "ia", insieme.rifiutati))
                << insieme.di << ": " << c;
}

TEST(NomeRifiutato, OfAsciiOnlyTheCharactersOfTheSetAreRefused) {
    for (const Insieme& insieme : insiemi) {
        const Caratteri rifiutati = Rifiutati(insieme);
        for (char c = 1; c < 127; ++c) {
            const std::string nome(1, c);
            const bool atteso =
                std::find(rifiutati.begin(), rifiutati.end(), nome) != rifiutati.end();
            EXPECT_EQ(NomeRifiutato(nome, insieme.rifiutati), atteso) << insieme.di << ": " << nome;
        }
    }
}

TEST(NomeRifiutato, AnEmptyNameAndAnEmptySetRefuseNothing) {
    for (const Insieme& insieme : insiemi)
        EXPECT_FALSE(NomeRifiutato("", insieme.rifiutati)) << insieme.di;
    EXPECT_FALSE(NomeRifiutato(",.-", ""));
}

TEST(NomeRifiutato, TheBytesThatTwoCharactersShareRefuseNeither) {
    EXPECT_FALSE(NomeRifiutato("·", "°§"));
    EXPECT_FALSE(NomeRifiutato("ç", "§"));
    EXPECT_TRUE(NomeRifiutato("·°", "°§"));
}

TEST(NomeDaFile, IsWhatStandsBeforeTheExtensionInWhateverCase) {
    EXPECT_EQ(NomeDaFile("aria.mel"), "aria");
    EXPECT_EQ(NomeDaFile("OLD.MEL"), "OLD");
    EXPECT_EQ(NomeDaFile("a.b.Mel"), "a.b");
    EXPECT_EQ(NomeDaFile("perché.mEL"), "perché");
    EXPECT_EQ(NomeDaFile(".mel"), "");
}

TEST(NomeDaFile, IsNoneForAnyOtherFile) {
    for (const char* file : {"", "mel", "aria.mel.bak", "aria.me", "aria.melo", "ariamel", "el"})
        EXPECT_EQ(NomeDaFile(file), std::nullopt) << file;
}

}  // namespace corvana::prova
