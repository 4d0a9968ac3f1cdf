// Making a folder, renaming a melody, deleting either.
#include <algorithm>
#include <cerrno>

#include "composer/file_panel.h"
#include "composer/folder_steps.h"
#include "core/file_faults.h"
#include "core/text.h"
#include "melody/names.h"

namespace corvana {

std::string PannelloFile::Chiedi(const std::string& domanda, const std::string& titolo,
                                 const std::string& proposta) {
    const auto risposta = a_.riquadri.InputBox(domanda, titolo, proposta);
    return std::string(SenzaBlanchi(risposta.value_or("")));
}

/// Of a command that has changed the folder, or that couldn't: then the list stays, and it's false.
bool PannelloFile::Riuscito(int errore) {
    if (errore == 0)
        ListaFD();
    else
        a_.riquadri.MsgBox(TestoGuasto(GuastoFile(errore)));
    return errore == 0;
}

void PannelloFile::CartellaVuota(const std::string& percorso, bool& vuota) const {
    vuota = SenzaMelodie(a_.file.Elenca(ConSeparatore(percorso)));
}

void PannelloFile::cmdMkdir_Click() {
    const TestiLingua& testi = a_.globali.testi;
    const std::string& cartella = a_.globali.percorsoCorrente;
    const std::string nome = Chiedi(testi.prmNomeCartella, testi.titNuovaCartella, "");
    if (nome.empty()) return;
    if (NomeRifiutato(nome, rifiutatiCartella))
        return a_.riquadri.MsgBox(testi.msgNomeCartellaErrato);
    if (EsisteCartellaDiNome(nome)) return a_.riquadri.MsgBox(testi.msgCartellaEsiste + nome);
    // One that has vanished doesn't come back by the way.
    Riuscito(a_.file.EsisteCartella(cartella) ? a_.file.CreaCartella(cartella + nome) : ENOENT);
}

bool PannelloFile::EsisteCartellaDiNome(const std::string& nome) const {
    const auto voci = a_.file.Elenca(a_.globali.percorsoCorrente);
    return std::any_of(voci.begin(), voci.end(), [&](const VoceCartella& voce) {
        return voce.cartella && Minuscolo(voce.nome) == Minuscolo(nome);
    });
}

void PannelloFile::cmdDelete_Click() {
    const std::string riga = List1.Scelta();
    if (stato_.inEsecuzione) return;
    bool finita = false;
    switch (GenereDi(riga)) {
        case GenereRiga::Nessuna: break;
        case GenereRiga::Sopra: finita = true; break;
        case GenereRiga::Cartella:
            finita = EliminaCartella(std::string(CartellaDellaRiga(riga)));
            break;
        case GenereRiga::Melodia: finita = EliminaMelodia(riga); break;
    }
    if (finita) vicine_.fuocoPlay();
}

/// A No is an end too; a failure isn't.
bool PannelloFile::EliminaCartella(const std::string& nome) {
    const TestiLingua& testi = a_.globali.testi;
    const std::string percorso = a_.globali.percorsoCorrente + nome;
    bool vuota = false;
    CartellaVuota(percorso, vuota);
    if (!vuota) {
        a_.riquadri.MsgBox(testi.msgCartellaNonVuota);
        return true;
    }
    return !a_.riquadri.Domanda(testi.msgEliminaCartella + nome + " ?") ||
           Riuscito(a_.file.EliminaCartella(percorso));
}

bool PannelloFile::EliminaMelodia(const std::string& nome) {
    return !a_.riquadri.Domanda(a_.globali.testi.msgEliminaMelodia + nome + " ?") ||
           Riuscito(a_.file.Elimina(Percorso(nome)));
}

void PannelloFile::cmdRename_Click() {
    const TestiLingua& testi = a_.globali.testi;
    const std::string vecchio = List1.Scelta();
    if (GenereDi(vecchio) != GenereRiga::Melodia) return;
    const std::string nuovo = Chiedi(testi.prmNuovoNome, testi.titRinominaMelodia, vecchio);
    if (nuovo.empty()) return;
    if (NomeRifiutato(nuovo, rifiutatiNuovoNome))
        return a_.riquadri.MsgBox(testi.msgNuovoNomeErrato);
    if (a_.file.Esiste(Percorso(nuovo)))
        return a_.riquadri.MsgBox(testi.msgNuovoNomeEsiste + nuovo);
    Riuscito(a_.file.RinominaSeLibero(Percorso(vecchio), Percorso(nuovo)));
}

}  // namespace corvana
