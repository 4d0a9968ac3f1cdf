#include "desktop/window_parts.h"

#include "desktop/face_table.h"

namespace corvana {

bool EDiMenu(const CopiaControllo& copia) {
    return copia.tipo == Genere::VoceMenu || copia.tipo == Genere::MenuContestuale;
}

std::set<int> VociConVoci(const std::vector<CopiaControllo>& controlli) {
    std::set<int> padri;
    for (const CopiaControllo& c : controlli)
        if (c.tipo == Genere::VoceMenu) padri.insert(c.padre);
    return padri;
}

std::set<int> ConWidget(const std::vector<CopiaControllo>& controlli) {
    std::set<int> con{0};
    for (const CopiaControllo& c : controlli) {
        if (EDiMenu(c) || !HaWidget(c)) continue;
        for (int n = c.padre; n != 0; n = controlli[static_cast<std::size_t>(n)].padre)
            con.insert(n);
    }
    return con;
}

}  // namespace corvana
