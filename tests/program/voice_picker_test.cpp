// The instrument picker over the melody window: the instrument of one of four voices.
#include <gtest/gtest.h>

#include "tests/program/voice_picker_rig.h"

namespace corvana::prova {

namespace {

using Programmi = std::vector<std::pair<int, int>>;

constexpr Colore verde = Rgb(0, 255, 0), rossa = Rgb(255, 0, 0);

std::array<Colore, 4> Colori(const std::array<Etichetta, 4>& etichette) {
    std::array<Colore, 4> colori{};
    for (std::size_t i = 0; i < colori.size(); ++i)
        colori[i] = etichette[i].BackColor();
    return colori;
}

}  // namespace

TEST(VociPicker, ItOpensOnTheActiveVoiceWithItsInstrumentAndName) {
    BancoPicker b([](BancoPicker& p) {
        p.composer->mix.VoceAttiva_Click(2);
        p.composer->mix.SceltaStrum(73);
        p.globali.testi.TipTenore = " Tenor ";
    });
    b.Quando(qui, [&] {
        EXPECT_TRUE(b.picker->frmVoci.Visible());
        EXPECT_EQ(b.picker->List1.ListIndex(), 73);
        EXPECT_EQ(Colori(b.picker->VoceAttiva),
                  (std::array<Colore, 4>{rossa, rossa, verde, rossa}));
        EXPECT_EQ(b.picker->lblVoceAttiva.Caption(), " Tenor ");
        EXPECT_EQ(b.Parola(), "Play");
        EXPECT_EQ(b.picker->bgVoci.Sfondo(),
                  (Sfumatura{Rgb(255, 239, 154), Rgb(255, 191, 58), true, false}));
    });
    EXPECT_TRUE(b.Vai(7));
}

TEST(VociPicker, TheLanguagesWordsNameTheLowerVoicesAndTheComposersLetterTheAlto) {
    BancoPicker b([](BancoPicker& p) {
        p.globali.testi.TipContralto = " Alto ";
        p.globali.testi.TipTenore = " Tenor ";
        p.globali.testi.TipBasso = " Bass ";
        p.composer->mix.VoceAttiva[1].Caption = "A";
    });
    b.Quando(qui, [&] {
        std::vector<std::string> lettere, consigli;
        for (const Etichetta& voce : b.picker->VoceAttiva) {
            lettere.push_back(voce.Caption());
            consigli.push_back(voce.ToolTipText());
        }
        EXPECT_EQ(lettere, (std::vector<std::string>{"S", "A", "T", "B"}));
        EXPECT_EQ(consigli, (std::vector<std::string>{" Soprano ", " Alto ", " Tenor ", " Bass "}));
    });
    EXPECT_TRUE(b.Vai(7));
}

TEST(VociPicker, WithoutALanguageTheyKeepTheWordsThatTheyWereMadeWith) {
    BancoPicker b;
    b.Quando(qui, [&] {
        EXPECT_EQ(b.picker->VoceAttiva[1].ToolTipText(), "Clicca per inserire il contralto");
        EXPECT_EQ(b.picker->VoceAttiva[2].ToolTipText(), "Clicca per inserire il tenore");
        EXPECT_EQ(b.picker->VoceAttiva[3].ToolTipText(), "Clicca per inserire il basso");
    });
    EXPECT_TRUE(b.Vai(7));
}

TEST(VociPicker, OpeningItSendsTheVoicesInstrumentAgainAndModifiesNothing) {
    BancoPicker b([](BancoPicker& p) {
        p.composer->mix.VoceAttiva_Click(3);
        p.composer->mix.SceltaStrum(40);
        p.composer->stato.lblModificato.Visible = false;
        p.uscita.messaggi.clear();
    });
    b.Quando(5.8, [&] { EXPECT_EQ(b.Programmi(), (Programmi{{4, 40}})); });
    b.Quando(qui, [&] { EXPECT_FALSE(b.Modificata()); });
    EXPECT_TRUE(b.Vai(7));
}

TEST(VociPicker, AClickOnAVoiceChoosesItInBothWindowsAndShowsItsInstrument) {
    BancoPicker b([](BancoPicker& p) {
        p.composer->mix.VoceAttiva_Click(1);
        p.composer->mix.SceltaStrum(52);
        p.composer->mix.VoceAttiva_Click(0);
        p.composer->stato.lblModificato.Visible = false;
        p.globali.testi.TipContralto = " Contralto ";
    });
    b.Clicca(qui, "VoceAttiva1");
    b.Quando(6.5, [&] {
        EXPECT_EQ(b.composer->stato.melodia.voceAttiva, "contralto");
        EXPECT_EQ(b.picker->List1.ListIndex(), 52);
        EXPECT_EQ(Colori(b.picker->VoceAttiva),
                  (std::array<Colore, 4>{rossa, verde, rossa, rossa}));
        EXPECT_EQ(Colori(b.composer->mix.VoceAttiva),
                  (std::array<Colore, 4>{rossa, verde, rossa, rossa}));
        EXPECT_EQ(b.picker->lblVoceAttiva.Caption(), " Contralto ");
        EXPECT_EQ(b.Programmi(), (Programmi{{2, 52}})) << "it is written back, and so sent";
        EXPECT_FALSE(b.Modificata()) << "what it was modifies nothing";
        EXPECT_FALSE(b.composer->riferimenti.cmdAddBm.Enabled())
            << "only the soprano has bookmarks";
    });
    EXPECT_TRUE(b.Vai(7));
}

TEST(VociPicker, EachVoiceIsChosenByItsOwnLabel) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        BancoPicker b;
        b.Clicca(qui, "VoceAttiva" + std::to_string(voce));
        b.Clicca(6.2, "List1", 70);
        b.Quando(6.5, [&] {
            EXPECT_EQ(b.composer->stato.melodia.voceAttiva, nomiVoci[voce]);
            for (std::size_t i = 0; i < numeroVoci; ++i)
                EXPECT_EQ(b.DellaVoce(i).strumento, i == voce ? 70 : 16) << i;
        });
        EXPECT_TRUE(b.Vai(7));
    }
}

TEST(VociPicker, AnIndexThatNoVoiceHasDoesNothing) {
    BancoPicker b;
    b.Quando(qui, [&] {
        b.picker->VoceAttiva_Click(-1);
        b.picker->VoceAttiva_Click(4);
        EXPECT_EQ(b.composer->stato.melodia.voceAttiva, "soprano");
        EXPECT_TRUE(b.uscita.messaggi.empty());
    });
    EXPECT_TRUE(b.Vai(7));
}

TEST(VociPicker, AnotherRowModifiesTheMelodyAndTheSameOneDoesnt) {
    BancoPicker b;
    b.Clicca(qui, "List1", 16);
    b.Quando(6.2, [&] { EXPECT_FALSE(b.Modificata()); });
    b.Clicca(6.4, "List1", 17);
    b.Quando(6.6, [&] {
        EXPECT_TRUE(b.Modificata());
        EXPECT_EQ(b.Programmi(), (Programmi{{1, 16}, {1, 17}}));
        EXPECT_EQ(b.globali.StrumentoGlobale, 16) << "the main window's own";
    });
    EXPECT_TRUE(b.Vai(7));
}

TEST(VociPicker, OpeningItAndChoosingAVoiceEndTheStepMode) {
    BancoPicker b([](BancoPicker& p) { p.composer->stato.passo.modoPasso = true; });
    b.Quando(qui, [&] {
        EXPECT_FALSE(b.composer->stato.passo.modoPasso);
        b.composer->stato.passo.modoPasso = true;
    });
    b.Clicca(6.2, "VoceAttiva2");
    b.Quando(6.5, [&] { EXPECT_FALSE(b.composer->stato.passo.modoPasso); });
    EXPECT_TRUE(b.Vai(7));
}

TEST(VociPicker, LookingAtAVoiceWhoseInstrumentTheListHasntChangesNothing) {
    for (const int strumento : {-1, 128, 500, -32768}) {
        BancoPicker b([&](BancoPicker& p) { p.DellaVoce(2).strumento = strumento; });
        b.Clicca(qui, "VoceAttiva2");
        b.Quando(6.5, [&] {
            EXPECT_EQ(b.picker->List1.ListIndex(), -1);
            EXPECT_EQ(b.DellaVoce(2).strumento, strumento);
            EXPECT_FALSE(b.Modificata());
            EXPECT_TRUE(b.Programmi().empty());
        });
        b.Clicca(6.6, "List1", 3);
        b.Quando(6.8, [&] { EXPECT_EQ(b.DellaVoce(2).strumento, 3); });
        EXPECT_TRUE(b.Vai(7));
    }
}

TEST(VociPicker, TheTestSoundsOnTheChannelOfTheVoice) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        BancoPicker b;
        b.Clicca(qui, "VoceAttiva" + std::to_string(voce));
        b.Clicca(6.5, "cmdTest");
        b.Quando(9, [&] {
            const auto canale = static_cast<unsigned>(voce + 1);
            EXPECT_EQ(b.Note(canale), (std::vector<int>{71, 72, 69, 64, 69})) << voce;
            for (unsigned altro = 1; altro <= 16; ++altro)
                EXPECT_TRUE(altro == canale || b.Note(altro).empty()) << altro;
        });
        EXPECT_TRUE(b.Vai(10));
    }
}

TEST(VociPicker, ItStandsBesideTheMainWindowsCornerAsForAnyCaller) {
    BancoPicker b;
    b.Quando(qui, [&] {
        EXPECT_EQ(b.picker->Left(), b.finestra.Left() + 900);
        EXPECT_EQ(b.picker->Top(), b.finestra.Top() + 2600);
        EXPECT_EQ(b.picker->Width(), 283 * 15);
        EXPECT_EQ(b.picker->Height(), 210 * 15);
    });
    EXPECT_TRUE(b.Vai(7));
}

TEST(VociPicker, AllThatItShowsForTheVoicesLiesWithinItAndNothingOverAnother) {
    BancoPicker b;
    b.Quando(qui, [&] {
        const frmStrum& f = *b.picker;
        EXPECT_LE(f.frmVoci.Top() + f.frmVoci.Height(), f.List1.Top());
        EXPECT_LE(f.frmVoci.Top() + f.frmVoci.Height(), f.cmdTest.Top());
        EXPECT_LE(f.List1.Top() + f.List1.Height(), f.Height());
        EXPECT_LE(f.cmdTest.Top() + f.cmdTest.Height(), f.cmdEscibg.Top());
        int destra = 0;
        for (const Controllo* c : {static_cast<const Controllo*>(&f.VoceAttiva[0]),
                                   static_cast<const Controllo*>(&f.VoceAttiva[1]),
                                   static_cast<const Controllo*>(&f.VoceAttiva[2]),
                                   static_cast<const Controllo*>(&f.VoceAttiva[3]),
                                   static_cast<const Controllo*>(&f.lblVoceAttiva),
                                   static_cast<const Controllo*>(&f.cmdPlaySstru)}) {
            EXPECT_GE(c->Left(), destra) << c->Name;
            destra = c->Left() + c->Width();
        }
        EXPECT_LE(destra, f.frmVoci.Width());
    });
    EXPECT_TRUE(b.Vai(7));
}

TEST(VociPicker, TheMainWindowsPickerShowsNoVoicesAndItsTestIsOnChannelOne) {
    BancoProgramma b;
    b.Clicca(3, "mnuSs");
    b.Quando(4, [&] {
        auto& picker = dynamic_cast<frmStrum&>(*b.finestre.Davanti());
        EXPECT_FALSE(picker.frmVoci.Visible());
        EXPECT_EQ(picker.List1.Top(), 225);
        picker.cmdPlaySstru_Click();
        picker.VoceAttiva_Click(1);
        EXPECT_EQ(picker.cmdPlaySstru.Caption(), "Play") << "there is nothing to play";
    });
    EXPECT_TRUE(b.Vai(5));
}

}  // namespace corvana::prova
