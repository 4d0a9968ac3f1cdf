#include "tests/language/expected_rows.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

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

std::string_view ParoleDi(int id, std::string_view RigaAttesa::*parole) {
    for (const FinestraAttesa& finestra : FinestreAttese())
        for (const RigaAttesa& riga : finestra.righe)
            if (riga.id == id) return riga.*parole;
    throw std::logic_error("no row " + std::to_string(id));
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
