// Both languages in the real windows, chosen while the program runs.
#include <gtest/gtest.h>

#include <QAction>
#include <algorithm>
#include <fstream>

#include "core/text.h"
#include "tests/desktop/readings.h"
#include "tests/desktop/visit.h"
#include "tests/language/expected_rows.h"

namespace corvana::prova {
namespace {

bool Legge(const std::set<std::string>& testi, std::string_view parole) {
    return std::ranges::any_of(
        testi, [&](const std::string& testo) { return testo.find(parole) != testo.npos; });
}

/// An entry of a menu tells what it does, and nothing else comes up over it.
const std::string senzaConsiglio = "mnuSalvaCont.tip";

void ControllaRighe(Lette& lette, std::string_view RigaAttesa::*parole) {
    for (const FinestraAttesa& finestra : FinestreAttese())
        for (const RigaAttesa& riga : finestra.righe)
            for (const std::string& posto : LuoghiDi(riga))
                EXPECT_TRUE(posto == senzaConsiglio ||
                            Legge(lette[finestra.nome][posto], riga.*parole))
                    << finestra.nome << ' ' << riga.id << ' ' << posto << ": " << riga.*parole;
}

/// The texts of the main window, or of all, by id.
std::map<int, std::string> RigheDelFile(const char* nome, bool tutte) {
    std::ifstream file(std::string(CORVANA_DATA "/") + nome, std::ios::binary);
    std::map<int, std::string> righe;
    for (std::string linea; std::getline(file, linea);) {
        const auto campi = Dividi(linea, ';');
        if (tutte || campi.at(1) == "CorvanaMainF") righe[std::stoi(campi.at(0))] = campi.at(2);
    }
    return righe;
}

/// Each text of one language, with all that stands for it in the other.
using Traduzioni = std::map<std::string, std::set<std::string>>;

std::string SenzaBlanchiIntorno(const std::string& testo) {
    const auto inizio = testo.find_first_not_of(' ');
    return inizio == testo.npos ? ""
                                : testo.substr(inizio, testo.find_last_not_of(' ') - inizio + 1);
}

Traduzioni Traduci(const char* da, const char* verso) {
    const auto prima = RigheDelFile(da, false), dopo = RigheDelFile(verso, false);
    Traduzioni traduzioni;
    for (const auto& [id, testo] : prima)
        traduzioni[SenzaBlanchiIntorno(testo)].insert(SenzaBlanchiIntorno(dopo.at(id)));
    return traduzioni;
}

/// Of all windows, those that are long enough to be known again in another text.
std::set<std::string> TestiLunghi(const char* file) {
    constexpr std::size_t lungo = 6;
    std::set<std::string> lunghi;
    for (const auto& [id, testo] : RigheDelFile(file, true))
        if (const std::string uno = SenzaBlanchiIntorno(testo); uno.size() >= lungo)
            lunghi.insert(uno);
    return lunghi;
}

/// Names of instruments are the same in both, and a cross stands for that button's word.
bool Scusato(const std::string& finestra, const std::string& posto) {
    return (finestra == "frmStrum" && posto.starts_with("List1")) ||
           (finestra == "frmCopyFromA" && posto == "cmdChiudi");
}

/// Nothing of the one language is read where the other was chosen.
void ControllaAssenti(const Lette& lette, const char* scelta, const char* altra) {
    const auto giusti = TestiLunghi(scelta);
    for (const std::string& estraneo : TestiLunghi(altra)) {
        if (Legge(giusti, estraneo)) continue;
        for (const auto& [finestra, posti] : lette)
            for (const auto& [posto, testi] : posti)
                EXPECT_FALSE(!Scusato(finestra, posto) && Legge(testi, estraneo))
                    << finestra << ' ' << posto << estraneo;
    }
}

/// What was read in one language, place by place, and then in the other.
void ControllaCambio(const Letture& prima, const Letture& dopo, const Traduzioni& traduzioni) {
    ASSERT_EQ(prima.size(), dopo.size());
    for (const auto& [posto, testo] : prima) {
        const auto trovate = traduzioni.find(SenzaBlanchiIntorno(testo));
        if (trovate == traduzioni.end()) continue;
        EXPECT_TRUE(trovate->second.contains(SenzaBlanchiIntorno(dopo.at(posto))))
            << posto << ": " << testo << " became " << dopo.at(posto);
    }
}

/// What a window says in one state or another, in the words of a row.
struct Stato {
    const char *finestra, *posto;
    int riga;
};

constexpr Stato stati[] = {{"CorvanaMainF", "lblX12.tip", 54},
                           {"CorvanaMainF", "lblX12.tip", 55},
                           {"frmStrum", "VoceAttiva1.tip", 380},
                           {"frmStrum", "VoceAttiva2.tip", 381},
                           {"frmStrum", "VoceAttiva3.tip", 382},
                           {"frmConfMetro", "Text1", 73},
                           {"frmConfMetro", "Text1", 74},
                           {"frmInto", "ToolButton1.tip", 6},
                           {"frmInto", "ToolButton2.tip", 160},
                           {"frmInto", "ToolButton3.tip", 161},
                           {"frmInto", "ToolButton4.tip", 163},
                           {"frmInto", "ToolButton5.tip", 162},
                           {"frmInto", "ToolButton6.tip", 78},
                           {"frmInto", "ToolButton7.tip", 49},
                           {"frmInto", "lblMod.tip", 175},
                           {"frmInto", "lblModo.tip", 188},
                           {"frmInto", "lblStep", 183},
                           {"frmInto", "lblStep", 215},
                           {"frmInto", "lblStep", 216},
                           {"frmInto", "lblStep", 241},
                           {"frmInto", "Il3.tip", 205},
                           {"frmInto", "Il1.tip", 206},
                           {"frmInto", "lblFv", 208},
                           {"frmInto", "lblFv", 209},
                           {"frmInto", "EsclTa0.tip", 220},
                           {"frmInto", "lblVt", 224},
                           {"frmInto", "lblVt.tip", 226},
                           {"frmInto", "lblT(0).tip", 237},
                           {"frmInto", "lblT(1).tip", 238},
                           {"frmInto", "lblSolotb.tip", 239},
                           {"frmInto", "lblSolotb.tip", 240},
                           {"frmInto", "lblMod.tip", 176},
                           {"frmInto", "lblModo.tip", 189},
                           {"frmInto", "lblModo.tip", 190},
                           {"frmInto", "lblVt", 225},
                           {"frmInto", "lblVt.tip", 227},
                           {"frmInto", "lblSceltaTasti", 240},
                           {"frmInto", "lblSceltaTasti", 239},
                           {"frmComposer", "mnuPiano", 43},
                           {"frmComposer", "mnuOrgano", 42},
                           {"frmComposer", "lstBookMark[0]", 356}};

void ControllaStati(Lette& lette, std::string_view RigaAttesa::*parole) {
    for (const Stato& stato : stati)
        EXPECT_TRUE(Legge(lette[stato.finestra][stato.posto], ParoleDi(stato.riga, parole)))
            << stato.finestra << ' ' << stato.posto << ' ' << stato.riga;
}

TEST(LingueNelleFinestre, EachRowIsReadWhereItBelongsInTheLanguageThatIsChosen) {
    Visita visita;
    Lette italiano = visita.LeggiTutto();
    ControllaRighe(italiano, &RigaAttesa::italiano);
    ControllaStati(italiano, &RigaAttesa::italiano);
    ControllaAssenti(italiano, "langit.csv", "langen.csv");
    visita.Scegli("mnuEn");
    Lette inglese = visita.LeggiTutto();
    ControllaRighe(inglese, &RigaAttesa::inglese);
    ControllaStati(inglese, &RigaAttesa::inglese);
    ControllaAssenti(inglese, "langen.csv", "langit.csv");
}

TEST(LingueNelleFinestre, AllThatIsOpenChangesAtOnceAndBack) {
    Visita visita;
    visita.Scegli("mnuAutomatico");
    visita.Scegli("mnuMetro");
    visita.Batti(Qt::Key_F1);
    const FinestraAiuto& aiuto = *visita.scrivania.Aiuto();
    const auto leggi = [&] {
        Letture letture = LeggiFinestra(visita.scrivania);
        letture["help"] = aiuto.windowTitle().toStdString();
        for (const QAction* azione : aiuto.findChildren<QAction*>())
            if (!azione->text().isEmpty())
                letture["help." + std::to_string(letture.size())] = azione->text().toStdString();
        return letture;
    };
    const Letture prima = leggi();
    visita.Scegli("mnuEn");
    const Letture dopo = leggi();
    ControllaCambio(prima, dopo, Traduci("langit.csv", "langen.csv"));
    ControllaCambio(dopo, prima, Traduci("langen.csv", "langit.csv"));
    visita.Scegli("mnuIt");
    EXPECT_EQ(leggi(), prima);
}

}  // namespace
}  // namespace corvana::prova
