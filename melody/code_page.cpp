#include "melody/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "forms/fault.h"

namespace corvana {

namespace {

/// What the codes 0x80 to 0x9F stand for; all others stand for the character of the same number.
constexpr std::array<char32_t, 32> riga8e9 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t primaRiga = 0x80;
constexpr char32_t nessuno = 0xFFFFFFFF;

void AggiungiUtf8(std::string& testo, char32_t carattere) {
    const auto pezzo = [&](char32_t bit) { testo += static_cast<char>(bit); };
    if (carattere < 0x80) return pezzo(carattere);
    if (carattere < 0x800) {
        pezzo(0xC0 | carattere >> 6);
        return pezzo(0x80 | (carattere & 0x3F));
    }
    pezzo(0xE0 | carattere >> 12);
    pezzo(0x80 | (carattere >> 6 & 0x3F));
    pezzo(0x80 | (carattere & 0x3F));
}

std::size_t Lunghezza(unsigned char primo) {
    if (primo < 0x80) return 1;
    if (primo < 0xC2) return 0;
    if (primo < 0xE0) return 2;
    return primo < 0xF0 ? 3 : 4;
}

/// The first character and how many bytes it takes; `nessuno` for what is no UTF-8 or too high.
char32_t Primo(std::string_view testo, std::size_t& lungo) {
    const auto primo = static_cast<unsigned char>(testo.front());
    lungo = std::min(std::max<std::size_t>(Lunghezza(primo), 1), testo.size());
    if (lungo == 1) return primo < 0x80 ? primo : nessuno;
    if (lungo != Lunghezza(primo) || lungo > 3) return nessuno;
    char32_t carattere = primo & (lungo == 2 ? 0x1FU : 0x0FU);
    for (std::size_t i = 1; i < lungo; ++i) {
        const auto byte = static_cast<unsigned char>(testo[i]);
        if ((byte & 0xC0U) != 0x80U) return nessuno;
        carattere = carattere << 6 | (byte & 0x3FU);
    }
    const bool troppoLungo = lungo == 3 && carattere < 0x800;
    return troppoLungo ? nessuno : carattere;
}

/// The code of a character in the page; -1 when it has none.
int Codice(char32_t carattere) {
    if (carattere < primaRiga || (carattere >= 0xA0 && carattere <= 0xFF))
        return static_cast<int>(carattere);
    const auto* trovato = std::find(riga8e9.begin(), riga8e9.end(), carattere);
    return trovato == riga8e9.end() ? -1
                                    : static_cast<int>(primaRiga + (trovato - riga8e9.begin()));
}

/// Then it is the same in both, as nearly all of a melody file is.
bool SoloAscii(std::string_view testo) {
    return std::all_of(testo.begin(), testo.end(),
                       [](char c) { return static_cast<unsigned char>(c) < primaRiga; });
}

}  // namespace

std::string DaCodicePagina(std::string_view byte) {
    if (SoloAscii(byte)) return std::string(byte);
    std::string testo;
    testo.reserve(byte.size());
    for (const char c : byte) {
        const auto codice = static_cast<unsigned char>(c);
        const bool particolare = codice >= primaRiga && codice < primaRiga + riga8e9.size();
        AggiungiUtf8(testo, particolare ? riga8e9[codice - primaRiga] : codice);
    }
    return testo;
}

std::string InCodicePagina(std::string_view testo) {
    if (SoloAscii(testo)) return std::string(testo);
    std::string byte;
    byte.reserve(testo.size());
    while (!testo.empty()) {
        std::size_t lungo = 1;
        const int codice = Codice(Primo(testo, lungo));
        if (codice < 0)
            throw Guasto(guastoArgomento, "A melody file can't hold the character \"" +
                                              std::string(testo.substr(0, lungo)) + "\"");
        byte += static_cast<char>(codice);
        testo.remove_prefix(lungo);
    }
    return byte;
}

}  // namespace corvana
