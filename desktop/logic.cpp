#include "desktop/logic.h"

#include "core/real_files.h"
#include "core/real_guardian.h"
#include "core/regional.h"
#include "core/single_instance.h"
#include "desktop/application.h"
#include "forms/real_clock.h"
#include "forms/watchful_boxes.h"
#include "program/program.h"

namespace corvana {

namespace {

std::unique_ptr<Custode> FaiCustode(const std::string& percorso) {
    if (percorso.empty()) return nullptr;
    return std::make_unique<CustodeReale>(std::make_unique<FileReali>(), percorso);
}

}  // namespace

void LogicaDelProgramma(Applicazione& applicazione, const Macchina& macchina) {
    if (macchina.puntuale) macchina.puntuale();
    OrologioReale diSistema;
    Pompa pompa(macchina.orologio ? *macchina.orologio : diSistema, applicazione.Coda());
    RiquadriConSguardo riquadri(applicazione.Riquadri(), pompa);
    Finestre finestre(pompa, riquadri, &applicazione.Schermo());
    FileReali dischi;
    ArchivioFile& file = macchina.file ? *macchina.file : dischi;
    Impostazioni impostazioni(file, riquadri, macchina.percorsoImpostazioni);
    const auto custode = FaiCustode(macchina.percorsoRecupero);
    CasualeFisso casuale;
    Globali globali;
    globali.CartellaProgramma = macchina.cartellaProgramma;
    globali.CartellaUtente = macchina.cartellaUtente;
    globali.CartellaDocumenti = macchina.cartellaDocumenti;
    globali.SeparatoreDecimale = SeparatoreDiSistema();

    const IstanzaUnica istanza(macchina.percorsoBlocco);
    const auto uscite = macchina.uscite([&pompa] { return pompa.Adesso(); });
    pompa.PonSveglia([&uscite] { uscite->Sveglia(); });
    Suono suono(*uscite, pompa, riquadri);
    if (!istanza.AltraIstanza()) impostazioni.Prepara();
    const Ambiente ambiente{globali,      pompa, finestre, riquadri,     suono,
                            impostazioni, file,  casuale,  custode.get()};
    Programma programma(ambiente);
    if (macchina.pronta) macchina.pronta(programma.principale);
    programma.DaMainAllaFine(istanza.AltraIstanza());
}

}  // namespace corvana
