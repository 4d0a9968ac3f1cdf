// What the window shows, allows and focuses while a melody plays and when it has ended.
#include <gtest/gtest.h>

#include <algorithm>

#include "composer/composer_state.h"
#include "tests/composer/composer_rig.h"

namespace corvana::prova {

namespace {

struct BancoStato : BancoComposer {
    BancoStato() {
        Voce(soprano, "60;00;62;", "0.25;0.25;0.25;", "n;p;n;");
        Voce(contralto, "48;50;", "0.25");
        finestra.incolla.cmdPaste.Enabled = true;
        specchio.fuochi.clear();
    }

    /// Names of those that a play disables which are enabled now.
    std::vector<std::string> Abilitati() const {
        std::vector<std::string> nomi;
        for (const Controllo* c : {static_cast<const Controllo*>(&finestra.modifica.cmdCanc),
                                   static_cast<const Controllo*>(&finestra.riferimenti.cmdAddBm),
                                   static_cast<const Controllo*>(&finestra.incolla.cmdPaste),
                                   static_cast<const Controllo*>(&finestra.menu.file),
                                   static_cast<const Controllo*>(&finestra.inserimento.cmdInsPausa),
                                   static_cast<const Controllo*>(&finestra.inserimento.cmdInsNota)})
            if (c->Enabled()) nomi.push_back(c->Name);
        return nomi;
    }
    int CaselleBloccate() const {
        int bloccate = 0;
        for (const Casella* c :
             {&finestra.voci.lblNini, &finestra.voci.lblNfine, &finestra.voci.lblNiniC,
              &finestra.voci.lblNfineC, &finestra.voci.lblNiniT, &finestra.voci.lblNfineT,
              &finestra.voci.lblNiniB, &finestra.voci.lblNfineB})
            bloccate += c->Locked();
        return bloccate;
    }
    /// What a property of a control became, in order, in a play.
    std::vector<std::string> Storia(const std::string& controllo) {
        specchio.registra = true;
        specchio.cambi.clear();
        Suona();
        std::vector<std::string> storia;
        for (const auto& cambio : specchio.cambi)
            if (cambio.controllo == controllo && std::holds_alternative<std::string>(cambio.valore))
                storia.push_back(std::get<std::string>(cambio.valore));
        return storia;
    }
};

using Nomi = std::vector<std::string>;

}  // namespace

TEST(StatoRiproduzione, APlayShowsStopInTheColourOfInsertingAndEndsWithPlayInThatOfTheNumber) {
    BancoStato b;
    EXPECT_EQ(b.Storia("cmdPlay"), (Nomi{"Stop", "Play"}));
    b.NelTick(1, [&] {
        EXPECT_EQ(b.finestra.play.cmdPlay.BackColor(),
                  b.finestra.inserimento.cmdInsNota.BackColor());
        EXPECT_TRUE(b.finestra.stato.inEsecuzione);
    });
    b.Suona();
    EXPECT_EQ(b.finestra.play.cmdPlay.BackColor(), b.finestra.stato.lblNe.BackColor());
    EXPECT_NE(b.finestra.inserimento.cmdInsNota.BackColor(), b.finestra.stato.lblNe.BackColor());
    EXPECT_FALSE(b.finestra.stato.inEsecuzione);
}

TEST(StatoRiproduzione, APlayDisablesEditingAndFilesAndLocksTheRangeBoxes) {
    BancoStato b;
    Nomi durante{"not looked at"};
    int bloccate = 0;
    b.NelTick(1, [&] {
        durante = b.Abilitati();
        bloccate = b.CaselleBloccate();
    });
    b.Suona();
    EXPECT_EQ(durante, Nomi{});
    EXPECT_EQ(bloccate, 8);
    EXPECT_EQ(b.Abilitati(),
              (Nomi{"cmdCanc", "cmdAddBm", "cmdPaste", "file", "cmdInsPausa", "cmdInsNota"}));
    EXPECT_EQ(b.CaselleBloccate(), 0);
}

TEST(StatoRiproduzione, WithoutTheSopranoActiveCmdAddBmStaysDisabled) {
    BancoStato b;
    b.finestra.mix.VoceAttiva_Click(contralto);
    b.Suona();
    EXPECT_EQ(b.Abilitati(), (Nomi{"cmdCanc", "cmdPaste", "file", "cmdInsPausa", "cmdInsNota"}));
}

TEST(StatoRiproduzione, TheSopranoChosenDuringAPlayEnablesCmdAddBmAtOnce) {
    BancoStato b;
    b.finestra.mix.VoceAttiva_Click(contralto);
    b.CliccaNelTick(2, "VoceAttiva0");
    Nomi durante;
    b.NelTick(3, [&] { durante = b.Abilitati(); });
    b.Suona();
    EXPECT_EQ(durante, Nomi{"cmdAddBm"});
}

TEST(StatoRiproduzione, TheEndOfAPlayGivesTheFocusToCmdPlay) {
    BancoStato b;
    b.Suona();
    EXPECT_EQ(b.specchio.fuochi, Nomi{"cmdPlay"});
    EXPECT_EQ(b.playFiniti, 0);
}

TEST(StatoRiproduzione, OfAPlayFromTheInstrumentPickerThePickerIsToldAndTheFocusStays) {
    BancoStato b;
    b.globali.PickerAperto = true;
    b.Suona();
    EXPECT_EQ(b.specchio.fuochi, Nomi{});
    EXPECT_EQ(b.playFiniti, 1);
}

TEST(StatoRiproduzione, TheActiveVoicesNoteIsShownByNumberAndNameAndAClearedDisplayEndsIt) {
    BancoStato b;
    EXPECT_EQ(b.Storia("lblNe"), (Nomi{"1", "2", "3", ""}));
    EXPECT_EQ(b.Storia("lblPnn"), (Nomi{"Do", "P", "Re", ""}));
    b.globali.NomiAnglo = true;
    EXPECT_EQ(b.Storia("lblPnn"), (Nomi{"C", "R", "D", ""}));
}

TEST(StatoRiproduzione, AVoiceChosenDuringAPlayIsShownFromItsNextNoteOn) {
    BancoStato b;
    b.CliccaNelTick(3, "VoceAttiva1");
    EXPECT_EQ(b.Storia("lblPnn"), (Nomi{"Do", "Re", ""}));
    EXPECT_EQ(b.melodia.voceAttiva, "contralto");
}

TEST(StatoRiproduzione, TheNumberOfNotesIsThatOfTheActiveVoice) {
    BancoStato b;
    b.finestra.stato.lblNt.Caption = "";
    b.Suona();
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "3");
    b.finestra.mix.VoceAttiva_Click(contralto);
    b.finestra.stato.lblNt.Caption = "";
    b.Suona();
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "2");
}

TEST(StatoRiproduzione, WithAnEmptyVoiceActiveTheSopranoBecomesTheActiveOne) {
    BancoStato b;
    b.finestra.mix.VoceAttiva_Click(2);
    Nomi durante;
    b.NelTick(1, [&] { durante = b.Abilitati(); });
    b.Suona();
    EXPECT_EQ(b.melodia.voceAttiva, "soprano");
    EXPECT_EQ(b.finestra.stato.lblNt.Caption(), "3");
    EXPECT_EQ(b.finestra.mix.VoceAttiva[soprano].BackColor(), Rgb(0, 255, 0));
    EXPECT_EQ(durante, Nomi{"cmdAddBm"});
}

TEST(StatoRiproduzione, AnEmptySopranoThatIsActiveIsntChosenAnew) {
    BancoStato b;
    b.Voce(soprano, "", "", "");
    Nomi durante;
    b.NelTick(1, [&] { durante = b.Abilitati(); });
    b.Suona([&] { b.finestra.play.SuonaMelodia(0, 0, false); });
    EXPECT_EQ(durante, Nomi{});
    EXPECT_EQ(b.TickPassati(), 16);
}

TEST(StatoRiproduzione, TheCursorMovesInProportionToTheTicksAndReturnsToTheLeftEnd) {
    BancoStato b;
    b.Voce(soprano, "60;", "0.125");
    b.Voce(contralto, "", "", "");
    b.specchio.registra = true;
    b.Suona();
    std::vector<int> posti;
    for (const auto& cambio : b.specchio.cambi)
        if (cambio.controllo == "Cursore") posti.push_back(std::get<int>(cambio.valore));
    // A quarter, half and three quarters of 1770 from 2190 on, halves to the even number.
    EXPECT_EQ(posti, (std::vector{2632, 3075, 3518, 2190}));
}

TEST(StatoRiproduzione, TheKeysOfAllVoicesAreLitWhileTheySound) {
    BancoStato b;
    const auto accesi = [&] {
        std::vector<std::ptrdiff_t> tasti;
        for (std::size_t tasto = 0; tasto < b.finestra.tasti.lb.size(); ++tasto)
            if (b.finestra.tasti.lb[tasto].BackStyle() == fondoOpaco)
                tasti.push_back(static_cast<std::ptrdiff_t>(tasto) + 36);
        return tasti;
    };
    std::vector<std::vector<std::ptrdiff_t>> visti;
    for (const int tick : {1, 7, 8, 9, 16, 17})
        b.NelTick(tick, [&] { visti.push_back(accesi()); });
    b.Suona();
    EXPECT_EQ(visti,
              (std::vector<std::vector<std::ptrdiff_t>>{{48, 60}, {48, 60}, {}, {50}, {}, {62}}));
    EXPECT_TRUE(accesi().empty());
}

TEST(StatoRiproduzione, ThePositionsReturnToTheFirstNote) {
    BancoStato b;
    b.CliccaNelTick(12, "cmdPlay");
    b.NelTick(12, [&] {
        EXPECT_EQ(b.stato.voci[soprano].posizione, 1);
        EXPECT_EQ(b.stato.voci[contralto].posizione, 1);
    });
    b.Suona();
    for (const StatoVoce& voce : b.stato.voci)
        EXPECT_EQ(voce.posizione, 0);
}

TEST(StatoRiproduzione, ThePlayOfALoadedMelodyEndsTheLoading) {
    BancoStato b;
    b.melodia.inCaricamento = true;
    b.NelTick(3, [&] { EXPECT_TRUE(b.melodia.inCaricamento); });
    b.Suona();
    EXPECT_FALSE(b.melodia.inCaricamento);
}

TEST(StatoRiproduzione, WhilePlayingTheWindowRefusesToCloseWithoutAMessage) {
    BancoStato b;
    b.Fa(0.1, Fatto::Chiudi, "");
    b.Suona();
    EXPECT_EQ(b.TickPassati(), 24);
    EXPECT_EQ(b.specchio.chiuse, Nomi{});
    EXPECT_EQ(b.riquadri.messaggi, Nomi{});
    b.Fa(b.pompa.Adesso(), Fatto::Chiudi, "");
    b.pompa.AttendiEvento(b.pompa.Adesso() + 1);
    EXPECT_EQ(b.specchio.chiuse, Nomi{"frmComposer"});
}

TEST(StatoRiproduzione, TheEndSendsANoteOffToEachKeyOnChannel1ThenTo2And3And4) {
    BancoStato b;
    b.Suona();
    const auto& messaggi = b.uscita.messaggi;
    ASSERT_GE(messaggi.size(), 240U);
    for (std::size_t i = 0; i < 240; ++i)
        EXPECT_EQ(messaggi[messaggi.size() - 240 + i].messaggio, 0x90 + i % 4 + (36 + i / 4) * 256);
}

}  // namespace corvana::prova
