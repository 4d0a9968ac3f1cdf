#include "tests/data/language_files.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/text.h"

namespace corvana::prova {

namespace {

std::size_t Caratteri(const std::string& testo) {
    return UnBytePerCarattere(testo).size();
}

/// A well-formed sequence of UTF-8, as far as its lead and continuation bytes tell.
bool Utf8(const std::string& testo) {
    int mancano = 0;
    for (const char c : testo) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0) == 0x80) {
            if (mancano-- == 0) return false;
            continue;
        }
        if (mancano || byte >= 0xF5 || byte == 0xC0 || byte == 0xC1) return false;
        mancano = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC0 ? 1 : 0;
    }
    return mancano == 0;
}

/// Text with the same letter behind its "&" only once among these, the fixed "&File" included.
void MnemoniciDistinti(const Testi& testi, const std::vector<int>& menu, bool conFile) {
    std::set<char> lettere;
    if (conFile) lettere.insert('f');
    for (const int id : menu) {
        const std::string& testo = testi.at(id);
        const auto posto = testo.find('&');
        ASSERT_LT(posto + 1, testo.size()) << testo;
        const std::string lettera = Minuscolo(testo.substr(posto + 1, 1));
        EXPECT_TRUE(lettere.insert(lettera.front()).second) << testo;
    }
}

void Distinti(const Testi& testi, const std::vector<int>& ids) {
    std::set<std::string> visti;
    for (const int id : ids)
        EXPECT_TRUE(visti.insert(testi.at(id)).second) << id << ": " << testi.at(id);
}

const std::vector<int> menuPrincipale = {3, 37, 39};
const std::vector<int> menuInto = {158, 164, 168};
const std::vector<int> menuComposer = {246, 247};
/// On the buttons of a question, and in the menu of a text.
const std::vector<int> siNo = {384, 385};
const std::vector<int> menuTesto = {388, 389, 390, 391, 392, 393, 394, 395};

}  // namespace

TEST(FileLingue, EveryIdStandsOnceUnderItsWindowAndNoOtherDoes) {
    for (const std::string& lingua : lingue) {
        std::map<std::string, Insieme> trovati;
        for (const RigaFile& riga : RigheLingua(lingua))
            EXPECT_TRUE(trovati[riga.finestra].insert(riga.id).second) << lingua << ' ' << riga.id;
        EXPECT_EQ(trovati, IdDiFinestra()) << lingua;
    }
}

TEST(FileLingue, BothHaveTheSameRowsInTheSameOrder) {
    const auto italiano = RigheLingua(lingue[0]);
    const auto inglese = RigheLingua(lingue[1]);
    ASSERT_EQ(italiano.size(), inglese.size());
    for (std::size_t i = 0; i < italiano.size(); ++i)
        EXPECT_EQ(italiano[i].id, inglese[i].id) << "row " << i;
}

TEST(FileLingue, TheyAreUtf8WithPlainLineEndsAndALastOne) {
    for (const std::string& lingua : lingue) {
        const std::string contenuto = ContenutoLingua(lingua);
        EXPECT_TRUE(Utf8(contenuto)) << lingua;
        EXPECT_TRUE(contenuto.ends_with('\n')) << lingua;
        const auto vietato = [](char c) { return c == '\r' || c == '\t' || c == '\0'; };
        EXPECT_TRUE(std::none_of(contenuto.begin(), contenuto.end(), vietato)) << lingua;
        EXPECT_FALSE(contenuto.starts_with("\xEF\xBB\xBF")) << lingua;
    }
}

TEST(FileLingue, NoTextIsEmptyOrBlank) {
    for (const std::string& lingua : lingue)
        for (const auto& [id, testo] : PerId(lingua))
            EXPECT_NE(testo.find_first_not_of(' '), std::string::npos) << lingua << ' ' << id;
}

TEST(FileLingue, ATextIsPaddedExactlyWhereSomethingIsJoinedToIt) {
    const Insieme prefissi = Fra(28, 34) + Insieme{241, 257, 363, 370, 372, 373, 374};
    const Insieme suffissi = {242};
    const Insieme disegnati = Fra(115, 121) + Insieme{88, 122, 124} + Fra(380, 382);
    for (const std::string& lingua : lingue)
        for (const auto& [id, testo] : PerId(lingua)) {
            if (disegnati.contains(id)) continue;
            EXPECT_EQ(testo.ends_with(' '), prefissi.contains(id)) << lingua << ' ' << id;
            EXPECT_EQ(testo.starts_with(' '), suffissi.contains(id)) << lingua << ' ' << id;
        }
}

TEST(FileLingue, WhatIsChosenByALetterHasItsOwnAndNothingElseHasOne) {
    for (const std::string& lingua : lingue) {
        SCOPED_TRACE(lingua);
        const Testi testi = PerId(lingua);
        MnemoniciDistinti(testi, menuPrincipale, true);
        MnemoniciDistinti(testi, menuInto, false);
        MnemoniciDistinti(testi, menuComposer, true);
        MnemoniciDistinti(testi, siNo, false);
        MnemoniciDistinti(testi, menuTesto, false);
        const Insieme menu = Insieme{3, 37, 39, 158, 164, 168, 246, 247, 384, 385} + Fra(388, 395);
        for (const auto& [id, testo] : testi)
            EXPECT_EQ(std::count(testo.begin(), testo.end(), '&'), menu.contains(id) ? 1 : 0) << id;
    }
}

TEST(FileLingue, TextsThatTheProgramTellsApartDiffer) {
    for (const std::string& lingua : lingue) {
        SCOPED_TRACE(lingua);
        const Testi testi = PerId(lingua);
        Distinti(testi, {180, 181, 182, 183, 184, 215, 216, 217});
        for (const int primo : {175, 205, 208, 220, 224, 226, 237, 239})
            Distinti(testi, {primo, primo + 1});
        Distinti(testi, {188, 189, 190});
        Distinti(testi, {12, 13, 14, 15, 16, 17, 18, 19, 20});
    }
}

TEST(FileLingue, QuestionsEndInAQuestionMark) {
    for (const std::string& lingua : lingue) {
        const Testi testi = PerId(lingua);
        for (const int id : {258, 276})
            EXPECT_TRUE(testi.at(id).ends_with('?')) << lingua << ' ' << id;
        // The program adds a name and the mark to these.
        for (const int id : {363, 370, 372})
            EXPECT_EQ(testi.at(id).find('?'), std::string::npos) << lingua << ' ' << id;
    }
}

TEST(FileLingue, TheBookmarkOfTheWholeMelodyCanBeKeptInAMelodyFile) {
    for (const std::string& lingua : lingue) {
        const std::string testo = PerId(lingua).at(356);
        EXPECT_EQ(testo.find("\xC3\xB7"), std::string::npos) << lingua;
        EXPECT_TRUE(std::all_of(testo.begin(), testo.end(), [](char c) { return c > 0; }))
            << lingua;
    }
}

TEST(FileLingue, CaptionsOfNarrowControlsAreShort) {
    const std::vector<std::pair<Insieme, std::size_t>> limiti = {
        {Fra(129, 153) + Fra(191, 204) + Insieme{218, 219, 228}, 6},
        {{307}, 1},
        {{1, 77, 84, 169, 173, 179, 186, 222, 224, 225, 235}, 10},
        {{85, 86, 87}, 14},
        {{277, 280, 284, 288, 293, 297, 351, 355, 377, 379}, 10},
        {{208, 209}, 14},
        {{239, 240}, 18}};
    for (const std::string& lingua : lingue)
        for (const auto& [id, testo] : PerId(lingua))
            for (const auto& [ids, caratteri] : limiti)
                EXPECT_TRUE(!ids.contains(id) || Caratteri(testo) <= caratteri)
                    << lingua << ' ' << id;
}

TEST(FileLingue, ToolTipsAndPromptsFitOnOneLine) {
    const Insieme prompt = {180, 181, 182, 183, 184, 215, 216, 217, 254};
    for (const std::string& lingua : lingue) {
        const Testi testi = PerId(lingua);
        for (const Bersaglio& b : BersagliDi(Cosa::Consiglio))
            EXPECT_LE(Caratteri(testi.at(b.id)), 80U) << lingua << ' ' << b.id;
        for (const int id : prompt)
            EXPECT_LE(Caratteri(testi.at(id)), 60U) << lingua << ' ' << id;
    }
}

TEST(FileLingue, TheEnglishTextsAreEnglish) {
    // What reads the same in both languages: names, signs, "Dim" and "Min", abbreviations, "No".
    const Insieme uguali = Fra(137, 142) + Fra(145, 148) + Insieme{385, 386};
    const Testi italiano = PerId(lingue[0]);
    const Testi inglese = PerId(lingue[1]);
    Insieme trovati;
    for (const auto& [id, testo] : italiano)
        if (testo == inglese.at(id)) trovati.insert(id);
    EXPECT_EQ(trovati, uguali);
}

}  // namespace corvana::prova
