#include "tests/language/expected_rows.h"

#include <algorithm>
#include <sstream>

namespace corvana::prova {

std::vector<FinestraAttesa> FinestreAttese() {
    return {{"CorvanaMainF", RigheMain()},    {"frmConfMetro", RigheConfMetro()},
            {"frmMidiTest", RigheMidiTest()}, {"frmAbout", RigheAbout()},
            {"frmOptions", RigheOptions()},   {"frmInto", RigheInto()},
            {"frmComposer", RigheComposer()}, {"frmCopyFromA", RigheCopyFromA()}};
}

RigheAttese RigheDi(std::string_view finestra) {
    for (const FinestraAttesa& attesa : FinestreAttese())
        if (attesa.nome == finestra) return attesa.righe;
    return {};
}

Luoghi LuoghiDi(const RigaAttesa& riga) {
    Luoghi luoghi;
    std::istringstream dove{std::string(riga.dove)};
    for (std::string luogo; dove >> luogo;) {
        std::erase_if(luogo, [](char c) { return c == '(' || c == ')'; });
        luoghi.insert(luogo);
    }
    return luoghi;
}

}  // namespace corvana::prova
