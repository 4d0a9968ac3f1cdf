// Whose instrument the picker shows and changes, by who is open.
#include <gtest/gtest.h>

#include "tests/support/rig.h"
#include "utilities/instruments.h"

namespace corvana::prova {

namespace {

/// Writes down what it is asked for.
class ComposerFinto final : public VociComposer {
public:
    std::string attiva = "tenore";
    std::array<std::int32_t, 4> strumenti = {10, 11, 12, 13};
    std::vector<std::string> diario;
    bool vuoto = false;

    std::string voceAttiva() const override { return attiva; }
    void PonVoceAttiva(const std::string& nome) override {
        attiva = nome;
        diario.push_back("voice " + nome);
    }
    std::int32_t strumento(std::size_t voce) const override { return strumenti.at(voce); }
    void SceltaStrum(std::int32_t programma) override {
        diario.push_back("instrument " + std::to_string(programma));
    }
    void VoceAttiva_Click(int Index) override {
        diario.push_back("selector " + std::to_string(Index));
    }
    std::string SiglaContralto() const override { return "A"; }
    bool SopranoVuoto() const override { return vuoto; }
    void cmdPlay_Click() override { diario.emplace_back("play"); }
};

using Diario = std::vector<std::string>;

/// The picker as it is loaded, with instruments that tell the three callers apart.
struct BancoChiamanti : Banco {
    ComposerFinto composer;
    frmStrum picker{Tutto(), {{}, &composer}};

    BancoChiamanti(bool conComposer, bool conInto) {
        globali.ComposerAperto = conComposer;
        globali.IntoAperto = conInto;
        globali.into.StrumentoInto = 20;
        globali.StrumentoGlobale = 30;
        suono.ApriMidi(-1);
    }
    void Carica() {
        finestre.Mostra(picker);
        uscita.messaggi.clear();
    }
};

}  // namespace

TEST(ChiamantiStrumenti, OpeningLooksForTheComposerFirstAndAClickForTheEarTrainerFirst) {
    BancoChiamanti b(true, true);
    b.Carica();
    EXPECT_TRUE(b.picker.frmVoci.Visible());
    EXPECT_EQ(b.picker.List1.ListIndex(), 12) << "the composer's voice";
    EXPECT_EQ(b.composer.diario, (Diario{"voice tenore", "selector 2"}))
        << "what the row's choice wrote went to the ear trainer";
    EXPECT_EQ(b.globali.into.StrumentoInto, 12);
    b.picker.List1.Seleziona(99);
    EXPECT_EQ(b.globali.into.StrumentoInto, 99);
    EXPECT_EQ(b.globali.StrumentoGlobale, 30);
    EXPECT_EQ(b.composer.diario.size(), 2U);
}

TEST(ChiamantiStrumenti, WithTheComposerAloneAllIsItsOwnInTheOrderOfTheSteps) {
    BancoChiamanti b(true, false);
    b.Carica();
    b.picker.VoceAttiva_Click(1);
    EXPECT_EQ(b.composer.diario, (Diario{"voice tenore", "instrument 12", "selector 2",
                                         "voice contralto", "instrument 11", "selector 1"}));
    EXPECT_EQ(b.globali.into.StrumentoInto, 20);
    EXPECT_EQ(b.globali.StrumentoGlobale, 30);
}

TEST(ChiamantiStrumenti, WithTheEarTrainerAloneItsInstrumentIsShownAndWrittenBack) {
    BancoChiamanti b(false, true);
    b.finestre.Mostra(b.picker);
    EXPECT_EQ(b.picker.List1.ListIndex(), 20);
    ASSERT_EQ(b.uscita.messaggi.size(), 1U);
    EXPECT_EQ(b.uscita.messaggi[0].messaggio, 20U << 8 | 0xC0U);
    EXPECT_FALSE(b.picker.frmVoci.Visible());
    EXPECT_TRUE(b.composer.diario.empty());
}

TEST(ChiamantiStrumenti, WithNeitherItIsTheMainWindows) {
    BancoChiamanti b(false, false);
    b.Carica();
    EXPECT_EQ(b.picker.List1.ListIndex(), 30);
    b.picker.List1.Seleziona(31);
    EXPECT_EQ(b.globali.StrumentoGlobale, 31);
    EXPECT_EQ(b.globali.into.StrumentoInto, 20);
    EXPECT_TRUE(b.composer.diario.empty());
}

TEST(ChiamantiStrumenti, AVoiceOfAnUnknownNameIsTakenForTheSoprano) {
    BancoChiamanti b(true, false);
    b.composer.attiva = "baritono";
    b.Carica();
    EXPECT_EQ(b.composer.attiva, "soprano");
    EXPECT_EQ(b.picker.List1.ListIndex(), 10);
}

TEST(ChiamantiStrumenti, PlayFlipsTheWordAndAsksTheComposerUnlessItsSopranoIsEmpty) {
    BancoChiamanti b(true, false);
    b.Carica();
    b.composer.diario.clear();
    b.picker.cmdPlaySstru_Click();
    EXPECT_EQ(b.picker.cmdPlaySstru.Caption(), "Stop");
    b.picker.cmdPlaySstru_Click();
    EXPECT_EQ(b.picker.cmdPlaySstru.Caption(), "Play");
    b.composer.vuoto = true;
    b.picker.cmdPlaySstru_Click();
    EXPECT_EQ(b.picker.cmdPlaySstru.Caption(), "Play");
    EXPECT_EQ(b.composer.diario, (Diario{"play", "play"}));
}

TEST(ChiamantiStrumenti, WhileTheWordIsStopItRefusesToCloseAndThePhraseRests) {
    BancoChiamanti b(true, false);
    b.Carica();
    b.picker.cmdPlaySstru_Click();
    b.picker.cmdTest_Click();
    b.picker.cmdEsci_Click();
    EXPECT_EQ(b.finestre.Davanti(), &b.picker);
    EXPECT_TRUE(b.globali.PickerAperto);
    EXPECT_TRUE(b.uscita.messaggi.empty());
    b.picker.PlayFinito();
    b.picker.cmdTest_Click();
    EXPECT_EQ(b.uscita.messaggi.front().messaggio & 0xFFU, 0x92U) << "the tenor's channel";
    b.picker.cmdEsci_Click();
    EXPECT_EQ(b.finestre.Davanti(), nullptr);
    EXPECT_FALSE(b.globali.PickerAperto);
}

TEST(ChiamantiStrumenti, TheEndOfTheProgramIsRefusedByNoWord) {
    BancoChiamanti b(true, false);
    b.Quando(1, [&] {
        b.picker.cmdPlaySstru_Click();
        b.coda.ChiediFine();
    });
    b.finestre.FinoAllUltima([&] { b.finestre.MostraModale(b.picker); });
    EXPECT_FALSE(b.globali.PickerAperto);
}

TEST(ChiamantiStrumenti, WhatIsSunkUnderThePointerIsAtRestAgainAsItCloses) {
    BancoChiamanti b(true, false);
    b.Carica();
    EXPECT_EQ(b.picker.cmdPlaySstru.ForeColor(), 0xFF0000);
    b.picker.cmdPlaySstru.MouseMove(Evento{});
    EXPECT_EQ(b.picker.cmdPlaySstru.ForeColor(), 255);
    const int riposo = b.picker.cmdPlaySstru.Top();
    EXPECT_EQ(b.picker.cmdPlaybg.Top(), riposo + 10);
    b.picker.cmdEsci_Click();
    EXPECT_EQ(b.picker.cmdPlaybg.Top(), riposo);
    EXPECT_EQ(b.picker.cmdPlaySstru.ForeColor(), 0xFF0000);
}

}  // namespace corvana::prova
