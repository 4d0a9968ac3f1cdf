// How each of the melodies that come with the program begins: the first two phrases of its tune,
// as anybody who knows it would sing them, written here as names of notes. C4 is the middle one.
#include <gtest/gtest.h>

#include <map>

#include "core/text.h"
#include "melody/mel_reader.h"
#include "tests/composer/demo_files.h"

namespace corvana::prova {

namespace {

struct Frasi {
    const char* prima;
    const char* seconda;
};

const std::map<std::string, Frasi> frasi = {
    {"Adeste fideles", {"G4 G4 D4 G4 A4 D4", "B4 A4 B4 C5 B4 A4"}},
    {"Ah vous dirai je maman", {"C5 C5 G5 G5 A5 A5 G5", "F5 F5 E5 E5 D5 D5 C5"}},
    {"Amazing grace", {"D4 G4 B4 A4 G4 B4 A4 G4 E4 D4", "D4 G4 B4 A4 G4 B4 A4 D5"}},
    {"Au clair de la lune",
     {"G4 G4 G4 A4 B4 A4 G4 B4 A4 A4 G4", "G4 G4 G4 A4 B4 A4 G4 B4 A4 A4 G4"}},
    {"Auld Lang Syne", {"C4 F4 F4 F4 A4 G4 F4 G4", "A4 F4 F4 A4 C5 D5"}},
    {"Canone in re", {"F#5 E5 D5 C#5 B4 A4 B4 C#5", "D5 C#5 B4 A4 G4 F#4 G4 E4"}},
    {"Fra Martino campanaro", {"F4 G4 A4 F4 F4 G4 A4 F4", "A4 Bb4 C5 A4 Bb4 C5"}},
    {"Galop infernale",
     {"C5 D5 F5 E5 D5 G5 G5 G5 A5 E5 F5 D5 D5", "D5 F5 E5 D5 C5 C6 B5 A5 G5 F5 E5 D5"}},
    {"Greensleeves", {"A4 C5 D5 E5 F#5 E5 D5 B4 G4 A4 B4", "C5 A4 A4 G#4 A4 B4 G#4 E4"}},
    {"Hanschen klein", {"G4 E4 E4 F4 D4 D4", "C4 D4 E4 F4 G4 G4 G4"}},
    {"Inno alla gioia",
     {"B4 B4 C5 D5 D5 C5 B4 A4 G4 G4 A4 B4 B4 A4 A4",
      "B4 B4 C5 D5 D5 C5 B4 A4 G4 G4 A4 B4 A4 G4 G4"}},
    {"Minuetto in sol", {"D5 G4 A4 B4 C5 D5 G4 G4", "E5 C5 D5 E5 F#5 G5 G4 G4"}},
    {"O du lieber Augustin",
     {"C5 D5 C5 Bb4 A4 F4 F4 G4 C4 C4 A4 F4 F4", "C5 D5 C5 Bb4 A4 F4 F4 G4 C4 C4 F4"}},
    {"Oh Susanna",
     {"C4 D4 E4 G4 G4 A4 G4 E4 C4 D4 E4 E4 D4 C4 D4",
      "C4 D4 E4 G4 G4 A4 G4 E4 C4 D4 E4 E4 D4 D4 C4"}},
    {"Row row row your boat", {"C4 C4 C4 D4 E4", "E4 D4 E4 F4 G4"}},
    {"Sakura", {"A4 A4 B4 A4 A4 B4", "A4 B4 C5 B4 A4 B4 A4 F4"}},
    {"Salmo centesimo", {"G4 G4 F#4 E4 D4 G4 A4 B4", "B4 B4 B4 A4 G4 C5 B4 A4"}},
    {"Stille Nacht", {"G4 A4 G4 E4 G4 A4 G4 E4", "D5 D5 B4 C5 C5 G4"}},
    {"Three blind mice", {"E4 D4 C4 E4 D4 C4", "G4 F4 F4 E4 G4 F4 F4 E4"}},
    {"Tu scendi dalle stelle", {"D5 D5 E5 D5 C5 C5 B4", "A4 B4 C5 D5 D5 C5 B4 A4"}},
};

/// A name of a sharp is its number, C4 being 60; of a flat likewise.
int Numero(const std::string& nome) {
    static const std::map<char, int> bianchi = {{'C', 0}, {'D', 2}, {'E', 4}, {'F', 5},
                                                {'G', 7}, {'A', 9}, {'B', 11}};
    const int alterata = nome[1] == '#' ? 1 : nome[1] == 'b' ? -1 : 0;
    return bianchi.at(nome[0]) + alterata + 12 * (nome.back() - '0' + 1);
}

std::vector<int> Numeri(const Frasi& f) {
    std::vector<int> numeri;
    for (const std::string& nome : Dividi(std::string(f.prima) + ' ' + f.seconda, ' '))
        numeri.push_back(Numero(nome));
    return numeri;
}

/// The soprano's first notes, without the rests before its entry.
std::vector<int> Inizio(const std::string& nome, std::size_t quante) {
    const std::string note = LeggiMel(ByteDemo(nome), '.').soprano[0];
    std::vector<int> numeri;
    for (const std::string& token : Dividi(note, ';'))
        if (token != "00" && numeri.size() < quante) {
            numeri.push_back(static_cast<int>(NumeroIntero(token, 0, 127)));
        }
    return numeri;
}

class FrasiDemo : public testing::TestWithParam<std::string> {};

}  // namespace

TEST_P(FrasiDemo, BeginsAsItsTuneDoes) {
    ASSERT_TRUE(frasi.contains(GetParam())) << "write its first two phrases down here";
    const std::vector<int> attesi = Numeri(frasi.at(GetParam()));
    EXPECT_EQ(Inizio(GetParam(), attesi.size()), attesi);
}

INSTANTIATE_TEST_SUITE_P(Melodie, FrasiDemo, testing::ValuesIn(MelodieDemo()), NomeDiProva);

TEST(FrasiDemo, NoneIsWrittenDownForAMelodyThatIsntThere) {
    EXPECT_EQ(frasi.size(), MelodieDemo().size());
}

}  // namespace corvana::prova
