#include "core/startup.h"

namespace corvana {

bool Main(const Ambiente& ambiente, bool altraIstanza,
          const std::function<void()>& mostraPrincipale) {
    if (altraIstanza) {
        ambiente.riquadri.MsgBox("The program is already running !!!");
        return false;
    }
    const Lingua& lingua = LinguaDi(ambiente.impostazioni.LeggiValore("Language"));
    if (lingua.nomiAnglo) ambiente.globali.NomiAnglo = true;
    PonLingua(ambiente.globali, lingua);
    ambiente.globali.PercorsoNote = ambiente.globali.CartellaProgramma + "/note/";
    mostraPrincipale();
    return true;
}

void PonLingua(Globali& globali, const Lingua& lingua) {
    globali.PercorsoLingua = globali.CartellaProgramma + std::string(lingua.testi);
    globali.FileAiuto = globali.CartellaProgramma + std::string(lingua.aiuto);
}

}  // namespace corvana
