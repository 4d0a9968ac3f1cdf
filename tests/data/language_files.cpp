#include "tests/data/language_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "core/text.h"
#include "tests/language/program_rows.h"

namespace corvana::prova {

Insieme Fra(int primo, int ultimo) {
    Insieme insieme;
    for (int id = primo; id <= ultimo; ++id)
        insieme.insert(id);
    return insieme;
}

Insieme operator+(Insieme a, const Insieme& b) {
    a.insert(b.begin(), b.end());
    return a;
}

const std::map<std::string, Insieme>& IdDiFinestra() {
    static const std::map<std::string, Insieme> insiemi = {
        {"CorvanaMainF", Fra(0, 26) + Fra(28, 57) + Insieme{78, 167} + Fra(380, 382) +
                             Fra(384, 395) + Fra(399, 413)},
        {"frmConfMetro", Fra(69, 74)},
        {"frmMidiTest", Fra(75, 77)},
        {"frmAbout", Fra(79, 82)},
        {"frmOptions", Fra(83, 142) + Fra(144, 156)},
        {"frmInto", Fra(157, 166) + Fra(168, 244)},
        {"frmComposer", Fra(245, 374) + Insieme{379, 383}},
        {"frmCopyFromA", Fra(375, 378)}};
    return insiemi;
}

std::vector<Bersaglio> BersagliDi(Cosa cosa) {
    std::vector<Bersaglio> trovati;
    for (const auto& [finestra, insieme] : IdDiFinestra())
        std::ranges::copy_if(BersagliDiFinestra(finestra), std::back_inserter(trovati),
                             [cosa](const Bersaglio& b) { return b.cosa == cosa; });
    return trovati;
}

std::string ContenutoLingua(const std::string& lingua) {
    std::ifstream file(std::string(CORVANA_DATA_SOURCE "/") + lingua, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<RigaFile> RigheLingua(const std::string& lingua) {
    std::vector<RigaFile> righe;
    std::string contenuto = ContenutoLingua(lingua);
    if (contenuto.ends_with('\n')) contenuto.pop_back();
    for (const std::string& linea : Dividi(contenuto, '\n')) {
        const auto campi = Dividi(linea, ';');
        EXPECT_EQ(campi.size(), 3U) << lingua << ": " << linea;
        if (campi.size() != 3) continue;
        righe.push_back({static_cast<int>(NumeroIntero(campi[0], 0, 999)), campi[1], campi[2]});
    }
    return righe;
}

Testi PerId(const std::string& lingua) {
    Testi testi;
    for (const RigaFile& riga : RigheLingua(lingua))
        testi[riga.id] = riga.testo;
    return testi;
}

}  // namespace corvana::prova
