// Step entry: the figures, the attributes, the multiplier, the buttons that insert, and the keys on
// the screen, which choose the active note and insert it. Logic thread.
#pragma once

#include <deque>
#include <functional>

#include "composer/composer_state.h"
#include "core/globals.h"

namespace corvana {

/// What step entry uses and moves of the panels around it.
struct VicineInserimento {
    std::deque<Etichetta>& tasti;  ///< the keys on the screen, of which it takes the handlers
    std::function<void(int tasto, bool acceso)> mostraTasto;
    std::function<void(int tasto)> tastoUsato;  ///< a key was let go
    std::function<void()> aggiornaVoce;         ///< the texts of the active voice have changed
    std::function<void()> abilitaPaste;
    std::function<void()> fuocoPlay;
};

class PannelloInserimento {
public:
    /// All must live as long as the panel.
    PannelloInserimento(const Ambiente& ambiente, Form& finestra, StatoComposer& stato,
                        VicineInserimento vicine);

private:
    Form& finestra_;

public:
    std::array<Figura, numeroFigure> cmdSimbNote{{{finestra_, "cmdSimbNote0"},
                                                  {finestra_, "cmdSimbNote1"},
                                                  {finestra_, "cmdSimbNote2"},
                                                  {finestra_, "cmdSimbNote3"},
                                                  {finestra_, "cmdSimbNote4"},
                                                  {finestra_, "cmdSimbNote5"},
                                                  {finestra_, "cmdSimbNote6"}}};
    std::array<Figura, senzaAttributo> cmdAttrNota{{{finestra_, "cmdAttrNota0"},
                                                    {finestra_, "cmdAttrNota1"},
                                                    {finestra_, "cmdAttrNota2"},
                                                    {finestra_, "cmdAttrNota3"},
                                                    {finestra_, "cmdAttrNota4"},
                                                    {finestra_, "cmdAttrNota5"}}};
    Etichetta lblAt{finestra_, "lblAt"};  ///< the accent of a triplet's note
    Spunta ckConsAtt{finestra_, "ckConsAtt"};
    Etichetta ckConsAttLb{finestra_, "ckConsAttLb"};
    Etichetta Label4{finestra_, "Label4"};
    Casella PausaPer{finestra_, "PausaPer"};
    Bottone cmdInsNota{finestra_, "cmdInsNota"}, cmdInsPausa{finestra_, "cmdInsPausa"};

    Colore ColoreAcceso = Rgb(10, 254, 10);
    Colore ColoreSpento = coloreDiSistema;

    /// A plain quarter note comes next, at the window's load.
    void Carica();
    void Abilita(bool abilita);

    void cmdSimbNote_Click(int Index);
    /// Outside of 0 to 5 it only gives the focus away.
    void cmdAttrNota_Click(int Index);
    void AzzeraAttributi();
    void lblAt_Click();
    void NascondiAccento();

    /// Adds the active note to the active voice, and sounds it unless it is to stay silent.
    void cmdInsNota_Click();
    void cmdInsPausa_Click();

    void Label4_Click();
    void Label4_DblClick();
    void PausaPer_KeyPress();
    void PausaPer_Validate();

    void lb_MouseDown(int Index);
    void lb_MouseUp(int Index);
    void lb_DblClick(int Index);

    /// Sounds a note for as long as one that is entered now would last; delivers no events
    /// meanwhile.
    void SuonaAnteprima(std::int16_t nota);
    /// The tick by which one hears that something was added.
    void TicchettioPausa();

private:
    void Collega();
    void CollegaTasti();
    void MostraAttributi();
    void FuocoSeFermo();
    OpzioniInserimento Opzioni() const;

    Ambiente a_;
    StatoComposer& stato_;
    StatoInserimento& inserimento_;
    VicineInserimento vicine_;
};

}  // namespace corvana
