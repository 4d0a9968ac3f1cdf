// Whole melodies entered by hand, with the mouse alone: what comes out is what their files hold,
// and sounds like it.
#include <gtest/gtest.h>

#include "tests/composer/demo_files.h"
#include "tests/composer/hand_rig.h"
#include "tests/composer/scribe.h"

namespace corvana::prova {

namespace {

struct BancoScrivano : BancoAMano {
    void Fai(const GestoMouse& gesto) {
        if (!gesto.controllo.starts_with("lb") || gesto.controllo == "lblAt") {
            Tocca(gesto.controllo);
            if (gesto.doppio) Subito(Fatto::DblClick, gesto.controllo);
            return;
        }
        const int nota = std::stoi(gesto.controllo.substr(2)) + 36;
        gesto.doppio ? DoppioClick(nota) : PremiTasto(nota);
    }
    void Scrivi(std::size_t voce, const TestiVoce& testi) {
        Tocca("VoceAttiva" + std::to_string(voce));
        for (const GestoMouse& gesto : GestiDi(testi))
            Fai(gesto);
    }
    void Scrivi(const LetturaMel& letta) {
        Subito(Fatto::Change, "Slider1", std::stoi(letta.tempo));
        Scrivi(soprano, letta.soprano);
        for (const BloccoMel& blocco : letta.blocchi)
            Scrivi(blocco.voce, {blocco.testi.at(0), blocco.testi.at(1), blocco.testi.at(2)});
    }
};

/// The same melody loaded from its file.
struct BancoCaricato : BancoAMano {
    explicit BancoCaricato(const std::string& nome) {
        PonFile(nome, ByteDemo(nome));
        finestra.archivio.cmdEseguiFile_Click();
    }
};

class AMano : public testing::TestWithParam<std::string> {
protected:
    BancoCaricato caricata{GetParam()};
    BancoScrivano b;
};

std::size_t Contiene(const std::vector<GestoMouse>& gesti, const std::string& controllo) {
    std::size_t volte = 0;
    for (const GestoMouse& gesto : gesti)
        volte += gesto.controllo == controllo;
    return volte;
}

}  // namespace

TEST_P(AMano, EnteredNoteByNoteItsTextsAreTheFilesAndItPlaysAsTheFileDoes) {
    b.Scrivi(LeggiMel(ByteDemo(GetParam()), '.'));
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        EXPECT_EQ(b.Testi(voce), caricata.Testi(voce)) << nomiVoci[voce];
        EXPECT_EQ(b.finestra.voci.perVoce[voce].nomi.Caption(),
                  caricata.finestra.voci.perVoce[voce].nomi.Caption());
    }
    EXPECT_TRUE(b.riquadri.messaggi.empty());
    caricata.Suona();
    b.Suona();
    EXPECT_FALSE(b.Messaggi().empty());
    EXPECT_EQ(b.Messaggi(), caricata.Messaggi());
    EXPECT_EQ(b.TickPassati(), caricata.TickPassati());
}

INSTANTIATE_TEST_SUITE_P(Melodie, AMano, testing::ValuesIn(MelodieDemo()), NomeDiProva);

TEST(Scrivano, WritesDotsByTheDotAndByATieAndTripletsByDoubleClicks) {
    const std::vector<GestoMouse> gesti =
        GestiDi({"60;62;00;64;65;67;69;",
                 "1.5;1.5;0.375;0.333333333333333;0.333333333333333;"
                 "0.333333333333333;0.75;",
                 "n;n;p;a;n;n;s;"});
    EXPECT_EQ(Contiene(gesti, "cmdAttrNota0"), 2U);
    EXPECT_EQ(Contiene(gesti, "cmdAttrNota2"), 1U);
    EXPECT_EQ(Contiene(gesti, "cmdAttrNota3"), 1U);
    EXPECT_EQ(Contiene(gesti, "cmdAttrNota1"), 1U);
    EXPECT_EQ(Contiene(gesti, "Label4"), 3U);
    EXPECT_EQ(Contiene(gesti, "cmdInsPausa"), 1U);
    EXPECT_THROW(GestiDi({"60;", "7;", "n;"}), std::invalid_argument);
}

TEST(Scrivano, WhatHeWritesOfEveryKindComesOutAsItWasRead) {
    const TestiVoce voce = {"60;62;00;64;65;67;69;70;00;72;74;36;95;",
                            "1.5;1.5;0.375;0.333333333333333;0.333333333333333;0.333333333333333;"
                            "0.75;6;3;0.0833333333333333;0.0833333333333333;0.0833333333333333;4;",
                            "n;n;p;a;n;n;s;t;p;n;a;n;a;"};
    BancoScrivano b;
    b.Scrivi(2, voce);
    EXPECT_EQ(b.Testi(2), voce);
}

}  // namespace corvana::prova
