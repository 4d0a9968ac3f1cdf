#include "core/startup.h"

namespace corvana {

bool Main(const Ambiente& ambiente, bool altraIstanza,
          const std::function<void()>& mostraPrincipale) {
    if (altraIstanza) {
        ambiente.riquadri.MsgBox("The program is already running !!!");
        return false;
    }
    const bool inglese = ambiente.impostazioni.LeggiValore("Language") == "en";
    if (inglese) ambiente.globali.NomiAnglo = true;
    PonLingua(ambiente.globali, inglese);
    ambiente.globali.PercorsoNote = ambiente.globali.CartellaProgramma + "/note/";
    mostraPrincipale();
    return true;
}

void PonLingua(Globali& globali, bool inglese) {
    const std::string& cartella = globali.CartellaProgramma;
    globali.PercorsoLingua = cartella + (inglese ? "/langen.csv" : "/langit.csv");
    globali.FileAiuto = cartella + (inglese ? "/corvanaen.chm" : "/corvana.chm");
}

}  // namespace corvana
