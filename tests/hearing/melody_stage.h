// The melody window, opened, over a clock, an output, files and a mirror of the caller's choice,
// which must outlive it. Logic thread.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>

#include "composer/composer.h"
#include "tests/support/memory_files.h"
#include "tests/support/open_window.h"
#include "tests/support/scripted_boxes.h"

namespace corvana::prova {

struct PalcoMelodia {
    /// Makes the output, given what tells the instant at which the logic stands.
    using FaiUscita =
        std::function<std::unique_ptr<PiattaformaMidi>(std::function<double()> istante)>;

    PalcoMelodia(Orologio& orologio, ArchivioFile& file, const FaiUscita& faiUscita,
                 Specchio* specchio = nullptr, Custode* custode = nullptr)
        : pompa(orologio, coda),
          finestre(pompa, riquadri, specchio),
          uscita(faiUscita([this] { return pompa.Adesso(); })),
          finestra(
              {globali, pompa, finestre, riquadri, suono, impostazioni, file, casuale, custode},
              {[] { return "Piano"; }, [] { return "Organo"; }, {}}) {
        globali.CartellaProgramma = "/programma";
        impostazioni.Prepara();
        suono.ApriMidi(dispositivoPredefinito);
        ApriSenzaCiclo(finestre, pompa, coda, finestra);
    }

    /// Lists the folder (with a closing separator) and chooses the melody of that name; false when
    /// the list doesn't have it.
    bool Scegli(const std::string& cartella, const std::string& nome) {
        globali.percorsoCorrente = cartella;
        finestra.archivio.ListaFD();
        const Righe& righe = finestra.archivio.List1.List();
        const auto riga = std::find(righe.begin(), righe.end(), nome);
        if (riga == righe.end()) return false;
        finestra.archivio.List1.ListIndex = static_cast<int>(riga - righe.begin());
        return true;
    }

    /// Clicks a control: delivered with the events that wait, after the next tick of a play.
    void Premi(const Controllo& controllo) {
        Evento click;
        click.finestra = finestra.Identita();
        click.controllo = controllo.Numero();
        coda.Aggiungi(click);
    }

    /// Splits the texts of a voice, which may have been changed.
    void Aggiorna(std::size_t voce) {
        melodia.voceAttiva = nomiVoci[voce];
        finestra.voci.AggiornaVoce();
        melodia.voceAttiva = nomiVoci[soprano];
    }

    CodaEventi coda;
    Pompa pompa;
    RiquadriDaCopione riquadri;
    Finestre finestre;
    std::unique_ptr<PiattaformaMidi> uscita;
    Suono suono{*uscita, pompa, riquadri};
    FileInMemoria fileImpostazioni;
    Impostazioni impostazioni{fileImpostazioni, riquadri, "/config/settings"};
    CasualeFisso casuale;
    Globali globali;
    frmComposer finestra;
    Melodia& melodia = finestra.stato.melodia;
};

}  // namespace corvana::prova
