#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "core/languages.h"

namespace corvana::prova {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t figuraMassima = 60'000;  ///< bytes

const fs::path radice = fs::path(CORVANA_DATA_SOURCE) / "help";
/// A folder for each language, the Italian one first.
const std::vector<std::string> volumi = [] {
    std::vector<std::string> nomi;
    for (const Lingua& lingua : lingue)
        nomi.push_back(fs::path(lingua.aiuto).stem());
    return nomi;
}();

std::set<std::string> NomiFile(const std::string& volume, const char* estensione) {
    std::set<std::string> nomi;
    for (const auto& file : fs::directory_iterator(radice / volume))
        if (file.path().extension() == estensione) nomi.insert(file.path().filename().string());
    return nomi;
}

std::string Testo(const fs::path& file) {
    std::ostringstream testo;
    testo << std::ifstream(file, std::ios::binary).rdbuf();
    return testo.str();
}

/// What all `src` and `href` of the pages of a volume name.
std::set<std::string> Rimandi(const std::string& volume, const std::string& pagina) {
    const std::string testo = Testo(radice / volume / pagina);
    const std::regex rimando("(?:src|href)=\"([^\"]*)\"");
    std::set<std::string> nomi;
    for (std::sregex_iterator i(testo.begin(), testo.end(), rimando), fine; i != fine; ++i)
        nomi.insert((*i)[1]);
    return nomi;
}

template <class F>
void PerOgniPagina(F controlla) {
    for (const std::string& volume : volumi)
        for (const std::string& pagina : NomiFile(volume, ".html")) {
            SCOPED_TRACE(volume + '/' + pagina);
            controlla(volume, pagina);
        }
}

int Quante(const std::string& testo, const std::string& parte) {
    int quante = 0;
    for (auto i = testo.find(parte); i != std::string::npos; i = testo.find(parte, i + 1))
        ++quante;
    return quante;
}

}  // namespace

TEST(PagineAiuto, BothLanguagesHaveTheSamePagesAndPictures) {
    EXPECT_EQ(NomiFile(volumi[0], ".html"), NomiFile(volumi[1], ".html"));
    EXPECT_EQ(NomiFile(volumi[0], ".png"), NomiFile(volumi[1], ".png"));
}

TEST(PagineAiuto, EveryWindowHasOneAndTheMelodyWindowOneForEachTask) {
    for (const std::string& volume : volumi)
        for (const char* pagina :
             {"index.html", "2.html", "3.html", "5.html", "7.html", "8.html", "20.html", "30.html",
              "40.html", "50.html", "60.html", "61.html", "62.html", "63.html", "64.html",
              "65.html", "66.html", "67.html"})
            EXPECT_TRUE(NomiFile(volume, ".html").contains(pagina)) << volume << ' ' << pagina;
}

TEST(PagineAiuto, EveryLinkAndPictureIsThere) {
    PerOgniPagina([](const std::string& volume, const std::string& pagina) {
        const auto rimandi = Rimandi(volume, pagina);
        EXPECT_FALSE(rimandi.empty());
        for (const std::string& nome : rimandi)
            EXPECT_TRUE(fs::is_regular_file(radice / volume / nome)) << nome;
    });
}

TEST(PagineAiuto, EveryPictureIsShownAndEveryPageCanBeReachedFromTheFirst) {
    for (const std::string& volume : volumi) {
        std::set<std::string> nominati;
        for (const std::string& pagina : NomiFile(volume, ".html"))
            nominati.merge(Rimandi(volume, pagina));
        for (const std::string& figura : NomiFile(volume, ".png"))
            EXPECT_TRUE(nominati.contains(figura)) << volume << ' ' << figura;
        const auto prima = Rimandi(volume, "index.html");
        for (const std::string& pagina : NomiFile(volume, ".html"))
            EXPECT_TRUE(pagina == "index.html" || prima.contains(pagina)) << volume << pagina;
    }
}

TEST(PagineAiuto, PicturesAreSmallAndDescribed) {
    for (const std::string& volume : volumi)
        for (const std::string& figura : NomiFile(volume, ".png"))
            EXPECT_LT(fs::file_size(radice / volume / figura), figuraMassima) << figura;
    PerOgniPagina([](const std::string& volume, const std::string& pagina) {
        const std::string testo = Testo(radice / volume / pagina);
        EXPECT_EQ(Quante(testo, "<img "), Quante(testo, " alt=\"")) << pagina;
        EXPECT_EQ(Quante(testo, " alt=\"\""), 0);
    });
}

TEST(PagineAiuto, EveryPageSaysItsLanguageAndIsWellNested) {
    PerOgniPagina([](const std::string& volume, const std::string& pagina) {
        const std::string testo = Testo(radice / volume / pagina);
        const bool inglese = volume.ends_with("en");
        EXPECT_NE(testo.find(inglese ? "<html lang=\"en\">" : "<html lang=\"it\">"),
                  std::string::npos);
        EXPECT_EQ(Quante(testo, "<title>"), 1);
        EXPECT_EQ(Quante(testo, "<h1>"), 1);
        for (const std::string segno : {"p", "b", "ul", "ol", "li", "table", "tr", "td", "h2", "a"})
            EXPECT_EQ(Quante(testo, '<' + segno + '>') + Quante(testo, '<' + segno + ' '),
                      Quante(testo, "</" + segno + '>'))
                << segno;
    });
}

TEST(PagineAiuto, ALanguageHasItsOwnWords) {
    for (const std::string& pagina : NomiFile(volumi[0], ".html")) {
        const std::string italiano = Testo(radice / volumi[0] / pagina);
        const std::string inglese = Testo(radice / volumi[1] / pagina);
        EXPECT_GT(Quante(italiano, " il "), 2) << pagina;
        EXPECT_EQ(Quante(inglese, " il "), 0) << pagina;
        EXPECT_GT(Quante(inglese, " the "), 2) << pagina;
        EXPECT_EQ(Quante(italiano, " the "), 0) << pagina;
        EXPECT_EQ(Quante(italiano, "<h2>"), Quante(inglese, "<h2>")) << pagina;
    }
}

}  // namespace corvana::prova
