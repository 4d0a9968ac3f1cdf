// The program's shared state: one block, made by the program's start and handed on by reference, so
// that a test makes its own. All windows read and write it directly. Logic thread.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/ear_trainer_state.h"
#include "core/guardian.h"
#include "core/metronome_state.h"
#include "core/random.h"
#include "core/settings.h"
#include "forms/windows.h"
#include "sound/sound.h"

namespace corvana {

/// Texts that the language file fills; empty until the rows of their window were applied, but for
/// the desktop's words.
struct TestiLingua : ParoleSchermo {
    std::string TxtRisposteEsatte, TxtRisposteErrate, TxtRisposteDate, TxtPercentuale;
    std::string TxtTempoImpiegato, TxtNoteMostrate, TxtVelocita;
    std::string TipX1, TipX2;
    std::string msgSenzaSuono;  ///< no sound device was found

    // In words: the staff, the five octaves, the places on the staff.
    std::string TxtPentagramma, TxtTastiera, LuogoChiaveSol, LuogoChiaveFa, LuogoLinea, LuogoSpazio;
    std::string LuogoSopra, LuogoSotto;         ///< beyond the staff's outer lines
    std::string LuogoTaglio, LuogoOltreTaglio;  ///< on a ledger line, and in the space beyond it

    // The instrument picker's, filled by the main window.
    std::string TipContralto, TipTenore, TipBasso;

    // The metronome's pattern: the two paragraphs of its explanation.
    std::string TxtSpiegaSequenza, TxtSpiegaTempo;

    // The about box: what stands behind the version, and two lines more.
    std::string TxtVersione, TxtMotto, TxtLicenza;

    // The ear trainer: prompts and messages, tool tips ("tt"), captions ("cap").
    std::string msgPrimoLimite, msgSecondoLimite, msgScegliRif, msgAscolta, msgFermato;
    std::string msgInt, msgAcc, msgPremiStart;
    std::string msgTastoPrima, msgTastoDopo;  ///< around the name of the asked key
    std::string msgAccTroppoAlto, msgStrettoSotto, msgStrettoSopra, msgRifFuori;
    std::string ttRifSi, ttRifNo, ttMelodico, ttMisto, ttArmonico, ttIntAmmesso, ttIntEscluso;
    std::string ttAccAmmesso, ttAccEscluso, ttMostraTasti, ttNascondiTasti, ttToAmmessa,
        ttToEsclusa;
    std::string capRifFisso, capRifVariabile, capMostraTasti, capNascondiTasti;
    std::string capSoloBianchi, capTuttiTasti;

    // The composer: messages, and the titles ("tit") and prompts ("prm") of its input boxes.
    std::string TxtIncolla;  ///< caption of the label that waits for the second click of a paste
    std::string msgUscireSenzaSalvare;
    std::string titSalvaConNome, prmNomeMelodia, msgNomeMelodiaErrato;
    std::string msgMelodiaEsiste, msgSostituirla;  ///< before the name of the melody; the next line
    std::string msgSalvataSuA, msgDiscoPieno, msgDiscoNonPronto, msgFileDanneggiato;
    std::string TxtMelodiaIntera;  ///< label of the bookmark of the whole melody
    std::string prmNomeRiferimento, msgNomeRiferimentoErrato, titRinominaRiferimento;
    std::string msgEliminaRiferimento;  ///< before the bookmark and " ?"
    std::string titRinominaMelodia;
    std::string prmNuovoNome, msgNuovoNomeErrato;  ///< of a melody as of a bookmark
    std::string msgTrasposizioneNo, msgNoteFuori;  ///< two lines of one message
    std::string titNuovaCartella, prmNomeCartella, msgNomeCartellaErrato;
    std::string msgEliminaCartella, msgEliminaMelodia;  ///< before the name and " ?"
    std::string msgCartellaNonVuota;
    std::string msgCartellaEsiste, msgNuovoNomeEsiste;  ///< before the name
    std::string msgRecuperoIlleggibile;                 ///< before the file that was put aside
};

struct Globali {
    std::string CartellaProgramma;       ///< where data lies, without a closing separator
    std::string CartellaUtente;          ///< the user's home, with a closing separator, or empty
    std::string CartellaDocumenti;       ///< the user's documents, with one, or empty
    std::string PercorsoLingua;          ///< full path of the active language file
    std::string PercorsoNote;            ///< folder of the cue sounds, with a closing separator
    std::string FileAiuto;               ///< the help file's full name
    std::int32_t StrumentoGlobale = 16;  ///< General MIDI program of the note voice
    bool NomiAnglo = false;              ///< note names C, D, E instead of Do, Re, Mi
    std::string percorsoCorrente;        ///< the melody folder, with a closing separator
    char SeparatoreDecimale = '.';       ///< the system's, in the duration tokens of melodies
    bool ComposerAperto = false;
    bool IntoAperto = false;
    bool PickerAperto = false;
    StatoMetronomo metronomo;
    StatoInto into;
    std::int32_t ContestoInto = 0;  ///< help page that the ear trainer opens with
    BandiereInto PaginaInto{};      ///< the page that the ear trainer opens on
    TestiLingua testi;
};

/// All that a window works with.
struct Ambiente {
    Globali& globali;
    Pompa& pompa;
    Finestre& finestre;
    Riquadri& riquadri;
    Suono& suono;
    Impostazioni& impostazioni;
    ArchivioFile& file;
    Casuale& casuale;
    Custode* custode = nullptr;  ///< keeps what isn't saved; null where nothing is to be kept
};

}  // namespace corvana
