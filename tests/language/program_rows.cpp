#include "tests/language/program_rows.h"

#include <gtest/gtest.h>

#include <map>

#include "composer/composer_rows.h"
#include "eartrainer/into_rows.h"
#include "metronome/conf_metro_rows.h"
#include "trainer/main_rows.h"
#include "utilities/utility_rows.h"

namespace corvana::prova {

Bersagli BersagliDiFinestra(std::string_view nome) {
    static const std::map<std::string_view, Bersagli> tabelle = {
        {"CorvanaMainF", BersagliPrincipali()}, {"frmConfMetro", BersagliConfMetro()},
        {"frmMidiTest", BersagliMidiTest()},    {"frmAbout", BersagliAbout()},
        {"frmOptions", BersagliOptions()},      {"frmInto", BersagliInto()},
        {"frmComposer", BersagliComposer()},    {"frmCopyFromA", BersagliCopyFromA()}};
    const auto trovata = tabelle.find(nome);
    if (trovata != tabelle.end()) return trovata->second;
    ADD_FAILURE() << nome << " has no table of rows";
    return {};
}

}  // namespace corvana::prova
