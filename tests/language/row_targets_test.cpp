// The program's tables of what each row sets, beside the same written by hand.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "tests/language/expected_rows.h"
#include "tests/language/program_rows.h"

namespace corvana::prova {

namespace {

/// The targets of an id in the program's own table.
struct Trovata {
    Luoghi luoghi;
    std::vector<std::string TestiLingua::*> stringhe;
};

std::string Luogo(const Bersaglio& bersaglio) {
    std::string controllo(bersaglio.controllo);
    if (bersaglio.cosa == Cosa::Consiglio) return controllo + ".tip";
    if (bersaglio.cosa == Cosa::Riga)
        return controllo + '[' + std::to_string(bersaglio.elemento) + ']';
    return controllo;
}

std::map<int, Trovata> TabellaDi(const std::string& finestra) {
    std::map<int, Trovata> trovate;
    for (const Bersaglio& bersaglio : BersagliDiFinestra(finestra)) {
        Trovata& trovata = trovate[bersaglio.id];
        if (bersaglio.cosa == Cosa::Stringa)
            trovata.stringhe.push_back(bersaglio.stringa);
        else
            EXPECT_TRUE(trovata.luoghi.insert(Luogo(bersaglio)).second) << bersaglio.id;
    }
    return trovate;
}

void Confronta(const RigaAttesa& attesa, const Trovata& trovata) {
    EXPECT_EQ(trovata.luoghi, LuoghiDi(attesa)) << attesa.id;
    ASSERT_EQ(trovata.stringhe.size(), attesa.stringa ? 1U : 0U) << attesa.id;
    EXPECT_TRUE(!attesa.stringa || trovata.stringhe.front() == attesa.stringa) << attesa.id;
}

}  // namespace

TEST(BersagliDelleRighe, EachRowSetsTheControlsAndTheStringThatItIsFor) {
    for (const FinestraAttesa& finestra : FinestreAttese()) {
        SCOPED_TRACE(finestra.nome);
        std::map<int, Trovata> tabella = TabellaDi(finestra.nome);
        EXPECT_EQ(tabella.size(), finestra.righe.size());
        for (const RigaAttesa& attesa : finestra.righe)
            Confronta(attesa, tabella[attesa.id]);
    }
}

}  // namespace corvana::prova
