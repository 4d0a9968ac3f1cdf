#include "utilities/about.h"

#include <array>

#include "core/effects.h"
#include "core/language.h"
#include "core/version.h"
#include "forms/keys.h"
#include "utilities/utility_rows.h"

namespace corvana {

namespace {

constexpr std::array postiAbout = {
    Posto{"frmAbout", 0, 0, 5175, 3600, "Corvana"},
    Posto{"frmBg", 0, 0, 5175, 3600, {}, {}, "pannello"},
    Posto{"lblTitle", 300, 180, 4575, 900, {}, {}, "insegna"},
    Posto{"lblVersion", 300, 1140, 4575, 300, {}, {}, "centro"},
    Posto{"Text2",
          300,
          1500,
          4575,
          1290,
          "Leggere le note, tenere il tempo, comporre e allenare l'orecchio.",
          {},
          "spiegazione"},
    Posto{"cmdOK", 1890, 2970, 1395, 420, "O K", {}, "principale"},
};

}  // namespace

frmAbout::frmAbout(const Ambiente& ambiente) : Form("frmAbout"), a_(ambiente) {
    Disponi(*this, postiAbout.data(), postiAbout.size());
    Text2.Locked = true;
    cmdOK.Click = [this] { cmdOK_Click(); };
}

void frmAbout::Form_Load() {
    Gradiente(frmBg, 255, 191, 58, 255, 239, 154, "ds", "i");
    RitagliaForm(*this, 345, 240);
    if (FileLinguaEsiste(a_)) UpdateString(a_, *this, BersagliAbout());
    lblTitle.Caption = std::string(versione::titolo) + "\r\n" + versione::anno;
    lblVersion.Caption = "Vers. " + std::to_string(versione::maggiore) + "." +
                         std::to_string(versione::minore) + "." +
                         std::to_string(versione::revisione) + " - " + a_.globali.testi.TxtVersione;
}

void frmAbout::Form_KeyDown(const Evento& tasto) {
    if (tasto.codice == vk::esc) cmdOK_Click();
}

void frmAbout::cmdOK_Click() {
    a_.finestre.Scarica(*this);
}

}  // namespace corvana
