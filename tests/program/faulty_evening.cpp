#include "tests/program/faulty_evening.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "tests/composer/mel_lines.h"
#include "tests/program/faulty_session.h"

namespace corvana::prova {

namespace {

constexpr const char* cartellaSupporto = "/media/stick/";

std::string Lingua() {
    std::string righe;
    for (const char* riga :
         {"0;CorvanaMainF;Corvana", "75;frmMidiTest;Uscite", "80;frmComposer;Melodie",
          "90;frmCopyFromA;Copia", "95;frmStrum;Strumenti", "182;frmInto;Scegli",
          "217;frmInto;Premi", "97;frmOptions;Promemoria", "98;frmAbout;Versione",
          "99;frmConfMetro;Sequenza"})
        righe.append(riga).append("\n");
    return righe;
}

}  // namespace

SeraConGuasti::SeraConGuasti() {
    for (const char* cartella :
         {"/programma/Melodie/Demo", "/home/u/Doc/vuota", "/media/stick", "/config"})
        tavolo_.disco.CreaCartella(cartella);
    tavolo_.disco.supportoRimovibile = cartellaSupporto;
    tavolo_.disco.contenuti["/programma/langit.csv"] =
        tavolo_.disco.contenuti["/programma/langen.csv"] = Lingua();
    for (const char* nome :
         {"/programma/Melodie/Demo/uno.mel", "/programma/Melodie/Demo/due.mel",
          "/home/u/Doc/vecchia.mel", "/home/u/Doc/inutile.mel", "/media/stick/portata.mel"})
        tavolo_.disco.contenuti[nome] = FileDi(dueVoci);
}

SeraConGuasti::SeraConGuasti(std::size_t quale, const GuastoIniettato& guasto) : SeraConGuasti() {
    tavolo_.registro->quale = quale;
    tavolo_.registro->guasto = guasto;
}

std::string SeraConGuasti::Vivi() {
    Prima();
    Seconda();
    ControllaFile();
    const auto& guasto = tavolo_.registro->guasto;
    if (tavolo_.disco.Esiste(percorsoTenuta) && !(guasto && guasto->daAlloraInPoi))
        tavolo_.Difetto("what was saved comes back as unsaved");
    return tavolo_.difetto;
}

void SeraConGuasti::Prima() {
    SessioneConGuasti s(tavolo_, "start");
    for (const char* voce : {"mnuPromemoria", "mnuSs", "mnuMidiTest", "mnuVersione"}) {
        s.Passo(voce, voce);
        s.Chiudi();
    }
    s.Passo("language", "mnuEn");
    s.Passo("opening", "mnuComposer");
    s.Passo("a rest", "cmdInsPausa");
    s.Passo("saving under a new name", "mnuSaveAs", false, "prima");
    s.Passo("another rest", "cmdInsPausa");
    s.Passo("saving", "mnuSalva");
    s.Passo("a third rest", "cmdInsPausa");
    s.Passo("saving onto a medium", "mnuSalvaA");
    s.Entra("/home/u/Doc/");
    s.Passo("a fourth rest", "cmdInsPausa");
    s.Passo("saving in place of another", "mnuSaveAs", true, "vecchia");
    s.Passo("a new folder", "cmdMkdir", false, "nuova");
    s.SullaRiga("vecchia", "renaming", "cmdRename", false, "antica");
    s.SullaRiga("» vuota", "deleting a folder", "cmdDelete", true);
    s.SullaRiga("inutile", "deleting a melody", "cmdDelete", true);
    s.Passo("importing", "mnuCopyFromA");
    s.ScegliTutto();
    s.Passo("copying", "cmdCopia");
    s.Chiudi();
    s.SullaRiga("portata", "loading", "cmdEseguiFile");
    s.Passo("the instruments", "mnuSs");
    s.Chiudi();
    s.Passo("the demonstrations", "cmdD");
    s.SullaRiga("uno", "loading a demonstration", "cmdEseguiFile");
    s.Passo("a rest that isn't saved", "cmdInsPausa");
    s.Finisci([&] { lasciata_ = s.Note(); });
    s.Vivi();
}

void SeraConGuasti::Seconda() {
    SessioneConGuasti s(tavolo_, "start again");
    s.Passo("opening again", "mnuComposer");
    s.Poi("found again", [&] { ControllaRitrovata(s.Note()); });
    s.Passo("a rest behind it", "cmdInsPausa");
    s.Passo("saving what was found", "mnuSaveAs", true, "ritrovata");
    s.Chiudi();
    // Without its texts it doesn't close.
    s.Passo("the ear trainer", "Intonazione");
    s.Chiudi();
    s.Finisci([] {});
    s.Vivi();
}

/// Where it can't be read it is still there, under this or another name.
void SeraConGuasti::ControllaRitrovata(const std::string& note) {
    const auto tenuta = [this](const std::string& percorso) {
        const auto melodia = LeggiTenuta(tavolo_.disco.contenuti[percorso]);
        return melodia ? melodia->voci[soprano].note : "";
    };
    const std::string daParte = std::string(percorsoTenuta) + ".damaged";
    if (note != lasciata_ && tenuta(percorsoTenuta) != lasciata_ && tenuta(daParte) != lasciata_ &&
        !tavolo_.MaiTenuta())
        tavolo_.Difetto("what wasn't saved is gone");
}

/// Nobody's file was replaced or taken away that he hadn't given up himself.
void SeraConGuasti::ControllaFile() {
    for (const ChiamataFile& c : tavolo_.registro->chiamate) {
        const bool suo = c.percorso.starts_with("/stato/") || c.percorso.starts_with("/config/") ||
                         c.percorso.find("/Demo.nuova/") != std::string::npos;
        if (!c.alPosto || suo || c.passo == "saving") continue;
        const std::string nome = std::filesystem::path(c.percorso).stem();
        const bool chiesto =
            std::any_of(tavolo_.detti.begin(), tavolo_.detti.end(), [&](const auto& detto) {
                return detto.first == c.passo && detto.second.find(nome) != std::string::npos;
            });
        if (!chiesto) {
            std::ostringstream quale;
            quale << "without a question: " << c;
            tavolo_.Difetto(quale.str());
        }
    }
}

}  // namespace corvana::prova
