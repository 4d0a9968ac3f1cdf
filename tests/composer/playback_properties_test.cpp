// What holds of every play.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>

#include "composer/play_panel.h"
#include "tests/composer/voice_model.h"

namespace corvana::prova {

namespace {

/// What a user does between two ticks.
struct Gesto {
    int tick = 1;
    int quale = 0;
    int valore = 0;
};

constexpr int gestiDiversi = 8;

void Compi(BancoComposer& b, const Gesto& gesto) {
    auto& f = b.finestra;
    const auto voce = static_cast<std::size_t>(gesto.valore) % numeroVoci;
    switch (gesto.quale) {
        case 0:
        case 1: return f.mix.perVoce[voce].volume.PonValore(gesto.valore % 99);
        case 2:
        case 3: return f.mix.VoceAttiva_Click(static_cast<int>(voce));
        case 4: return f.pulsi.lblTs_Click();
        case 5: return f.play.Slider1.PonValore(20 + gesto.valore % 231);
        case 6: return f.pulsi.Pulsazioni.PonTesto(std::to_string(1 + gesto.valore % 9));
        default: return f.pulsi.InizioPuls.PonValore(1);
    }
}

/// Lets the user do a few things in the first `tick` ticks of the play that follows.
void AggiungiGesti(BancoComposer& b, int tick) {
    for (int gesti = Tra(0, 12); gesti > 0; --gesti) {
        const Gesto gesto{Tra(1, std::max(tick, 1)), Tra(0, gestiDiversi - 1), Tra(0, 1000)};
        b.NelTick(gesto.tick, [&b, gesto] { Compi(b, gesto); });
    }
}

void EsigiFinita(const BancoComposer& b) {
    const auto& f = b.finestra;
    RC_ASSERT(b.uscita.NoteAccese().empty());
    RC_ASSERT(std::none_of(f.tasti.lb.begin(), f.tasti.lb.end(),
                           [](const Etichetta& tasto) { return tasto.BackStyle() == fondoOpaco; }));
    RC_ASSERT(f.play.cmdPlay.Caption() == "Play");
    RC_ASSERT(!f.stato.inEsecuzione);
    for (const Controllo* c : {static_cast<const Controllo*>(&f.modifica.cmdCanc),
                               static_cast<const Controllo*>(&f.incolla.cmdPaste),
                               static_cast<const Controllo*>(&f.menu.file),
                               static_cast<const Controllo*>(&f.inserimento.cmdInsPausa),
                               static_cast<const Controllo*>(&f.inserimento.cmdInsNota)})
        RC_ASSERT(c->Enabled());
    if (f.stato.melodia.voceAttiva == "soprano") RC_ASSERT(f.riferimenti.cmdAddBm.Enabled());
    for (const auto& voce : f.voci.perVoce)
        RC_ASSERT(!voce.prima.Locked() && !voce.ultima.Locked());
    RC_ASSERT(f.play.Cursore.Left() == sinistraRigaCur);
    RC_ASSERT(f.stato.lblNe.Caption().empty() && f.stato.lblPnn.Caption().empty());
}

/// The notes struck on a voice's channel come in the order of its tokens.
void EsigiInOrdine(const BancoComposer& b, std::size_t voce, const VoceModello& modello) {
    auto prossima = modello.begin();
    for (const Mandato& m : b.Messaggi(static_cast<int>(voce) + 1)) {
        if (m.velocita == 0) continue;
        prossima = std::find_if(prossima, modello.end(),
                                [&](const NotaModello& nota) { return nota.nota == m.nota; });
        RC_ASSERT(prossima != modello.end());
        ++prossima;
    }
}

void Verifica(const std::function<void()>& proprieta) {
    EXPECT_TRUE(rc::check(proprieta));
}

}  // namespace

TEST(ProprietaRiproduzione, EveryPlaySendsWhatThePlainModelSays) {
    Verifica([] {
        const MelodiaModello melodia = EstraiMelodia();
        BancoComposer b;
        Scrivi(b, melodia);
        b.melodia.tempo = static_cast<std::uint8_t>(Tra(20, 250));
        b.Suona();
        RC_CLASSIFY(melodia.Intera(), "whole");
        RC_CLASSIFY(melodia.prima > 0, "later range");
        RC_ASSERT(b.TickPassati() == TickAttesi(melodia));
        RC_ASSERT(b.Messaggi() == MandatiAttesi(melodia));
        EsigiFinita(b);
    });
}

TEST(ProprietaRiproduzione, ASecondPlaySendsTheSameAsTheFirst) {
    Verifica([] {
        const MelodiaModello melodia = EstraiMelodia();
        BancoComposer b;
        Scrivi(b, melodia);
        b.CliccaNelTick(Tra(1, std::max(TickAttesi(melodia), 1)), "cmdPlay");
        b.Suona();
        b.Suona();
        RC_ASSERT(b.Messaggi() == MandatiAttesi(melodia));
    });
}

TEST(ProprietaRiproduzione, WhateverAUserDoesMeanwhileAPlayTakesItsTicksAndLeavesNothingSounding) {
    Verifica([] {
        const MelodiaModello melodia = EstraiMelodia();
        const auto tempo = static_cast<std::uint8_t>(Tra(20, 250));
        BancoComposer b;
        Scrivi(b, melodia);
        b.melodia.tempo = tempo;
        AggiungiGesti(b, TickAttesi(melodia));
        b.Suona();
        b.melodia.tempo = tempo;
        RC_ASSERT(b.TickPassati() == TickAttesi(melodia));
        if (melodia.Intera()) RC_ASSERT(b.stato.tickTotali == b.TickPassati());
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            EsigiInOrdine(b, voce, melodia.voci[voce]);
        EsigiFinita(b);
    });
}

TEST(ProprietaRiproduzione, AStopAtAnyTickEndsAPlayThereHoweverOftenItIsRepeated) {
    Verifica([] {
        const MelodiaModello melodia = EstraiMelodia();
        const int durata = TickAttesi(melodia);
        RC_PRE(durata > 0);
        BancoComposer b;
        Scrivi(b, melodia);
        b.finestra.play.chekLoop.Value = true;
        AggiungiGesti(b, durata);
        const int giro = Tra(1, 4);
        const int fermata = Tra(1, durata);
        const double tick = 0.031;
        const double istante = (giro - 1) * (durata * tick + 0.502) + (fermata - 0.5) * tick;
        b.Clicca(istante, "cmdPlay");
        b.Suona();
        RC_ASSERT(std::abs(b.pompa.Adesso() - (istante + 0.5 * tick)) < 1e-6);
        EsigiFinita(b);
    });
}

TEST(ProprietaRiproduzione, EachRoundSendsTheSameNotesAsTheFirst) {
    Verifica([] {
        MelodiaModello melodia = EstraiMelodia();
        const int durata = TickAttesi(melodia);
        RC_PRE(durata > 0);
        BancoComposer b;
        Scrivi(b, melodia);
        b.finestra.play.chekLoop.Value = true;
        b.Clicca(3 * (durata * 0.031 + 0.502) - 0.2, "cmdPlay");
        b.Suona();
        const auto nelGiro = [&](int giro) {
            Mandati mandati = b.MessaggiDelGiro(giro, durata);
            std::erase_if(mandati, [&](const Mandato& m) { return m.tick > durata; });
            return mandati;
        };
        Mandati attesi = MandatiAttesi(melodia);
        std::erase_if(attesi, [&](const Mandato& m) { return m.tick > durata; });
        for (const int giro : {1, 2, 3})
            RC_ASSERT(nelGiro(giro) == attesi);
        EsigiFinita(b);
    });
}

}  // namespace corvana::prova
