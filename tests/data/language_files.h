// What the tests of the language files share: the files, and the ids that each window has. Any
// thread.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/language_targets.h"
#include "core/languages.h"

namespace corvana::prova {

using Insieme = std::set<int>;
using Testi = std::map<int, std::string>;

struct RigaFile {
    int id;
    std::string finestra;
    std::string testo;
};

/// The names of the files, the Italian one first.
inline const std::vector<std::string> lingue = [] {
    std::vector<std::string> nomi;
    for (const Lingua& lingua : corvana::lingue)
        nomi.emplace_back(lingua.testi.substr(1));
    return nomi;
}();

Insieme Fra(int primo, int ultimo);
Insieme operator+(Insieme a, const Insieme& b);

/// The ids that have a target, by the name of the window.
const std::map<std::string, Insieme>& IdDiFinestra();

/// The targets of that kind in all windows.
std::vector<Bersaglio> BersagliDi(Cosa cosa);

/// The whole of a language file of the sources.
std::string ContenutoLingua(const std::string& lingua);

/// Its rows. A line that hasn't exactly three fields fails the test and is left out.
std::vector<RigaFile> RigheLingua(const std::string& lingua);

/// Its texts.
Testi PerId(const std::string& lingua);

}  // namespace corvana::prova
