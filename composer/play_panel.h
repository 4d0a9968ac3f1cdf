// The commands around a play: tempo, start and stop, the loop, the delayed start, how far it has
// come and how long it is. The play itself is `Esecuzione`. Logic thread.
#pragma once

#include <functional>

#include "composer/composer_state.h"
#include "composer/pulses.h"
#include "core/globals.h"

namespace corvana {

constexpr int tempoMinimo = 20;  ///< quarter notes a minute
constexpr int tempoMassimo = 250;
constexpr int tempoIniziale = 60;

constexpr int sinistraRigaCur = 2190;  ///< left end of the cursor's way, in twips
constexpr int corsaCursore = 1770;

/// What a play reads and moves of the panels around it, all while it plays.
struct VicinePlay {
    const Battuta& battuta;
    std::function<std::int16_t()> forzaPulso;
    std::function<void()> contaPulso;
    std::function<int(std::size_t voce)> volume;  ///< value of a voice's bar
    std::function<void(int tasto, bool acceso)> mostraTasto;
    std::function<void()> spegniNoteVoci, spegniTutteLeNote;

    std::function<void(bool bloccati)> bloccaModifiche;  ///< what may not change meanwhile
    std::function<void(bool)> abilitaCanc, abilitaAddBm;
    std::function<void(int voce)> scegliVoce;
    std::function<void()> chiudiModifica;
    std::function<Colore()> coloreInPlay;
    /// A play that was started from the instrument picker has ended; may be empty.
    std::function<void()> finePlayDaPicker;
};

class PannelloPlay {
public:
    /// All must live as long as the panel.
    PannelloPlay(const Ambiente& ambiente, Form& finestra, StatoComposer& stato, VicinePlay vicine);

private:
    Form& finestra_;

public:
    Barra Slider1{finestra_, "Slider1"};
    Etichetta Velocità{finestra_, "Velocità"};
    Bottone cmdPlay{finestra_, "cmdPlay"};
    Spunta chekLoop{finestra_, "chekLoop"};
    Etichetta chekLoopLb{finestra_, "chekLoopLb"};
    Figura lblRigaCur{finestra_, "lblRigaCur"}, Cursore{finestra_, "Cursore"};
    std::array<Figura, 5> Secondo{{{finestra_, "Secondo0"},
                                   {finestra_, "Secondo1"},
                                   {finestra_, "Secondo2"},
                                   {finestra_, "Secondo3"},
                                   {finestra_, "Secondo4"}}};

    /// The tempo goes back to its start, at the window's load.
    void Carica();
    /// Takes the tempo from a file. Throws `Guasto` for what the slider can't hold.
    void PrendiTempo(const std::string& tempo);

    void Slider1_Change();
    void Slider1_Scroll();

    /// Plays, or, while something plays, asks it to stop. With `soloNota` the play ends with the
    /// first note. The arguments are read again while it plays.
    void SuonaMelodia(const std::int16_t& primaNota, const std::int16_t& ultimaNota,
                      const bool& soloNota);
    /// Asks what plays to stop.
    void FermaMelodia();
    void cmdPlay_Click();
    void mnuPlayRitardo_Click();

    /// Sum of the ticks of the soprano's notes 0 to `indice`; 0 for a negative one.
    Tick TickFinoANota(std::int16_t indice) const;
    void CalcolaTickTotali();

    /// The button shows that a play begins, and that none goes on.
    void MostraInPlay();
    void MostraFermo();
    /// Gives the word back to whoever started the play.
    void PlayFinito();

private:
    Ambiente a_;
    StatoComposer& stato_;
    Melodia& melodia_;
    VicinePlay vicine_;
};

}  // namespace corvana
