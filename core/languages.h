// The languages that the program speaks: what each is called in the settings, and where its texts
// and its help lie. A new language is a row here, its files in `data/`, and its entry in the main
// window's menu. Pure; any thread.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace corvana {

struct Lingua {
    std::string_view chiave;        ///< the stored value `Language`
    std::string_view testi, aiuto;  ///< files, from the program's folder
    bool nomiAnglo;                 ///< begins with C D E as the names of the notes
};

/// The first one serves whoever has chosen none.
constexpr std::array lingue = {
    Lingua{"it", "/langit.csv", "/corvana.chm", false},
    Lingua{"en", "/langen.csv", "/corvanaen.chm", true},
};

/// The language with that stored value, else the first.
constexpr const Lingua& LinguaDi(std::string_view chiave) {
    const auto* trovata = std::ranges::find(lingue, chiave, &Lingua::chiave);
    return trovata == lingue.end() ? lingue.front() : *trovata;
}

}  // namespace corvana
