#include "tests/hearing/heard.h"

namespace corvana::prova {

namespace {

constexpr double quiete = 3;  ///< seconds in which all that was let go has faded

double Hertz(int nota) {
    return 440 * std::exp2((nota - 69) / 12.0);
}

/// No note of it is an overtone of another.
constexpr std::array<int, numeroVoci> accordo = {74, 67, 59, 52};

/// The four voices hold the chord for `quarti` quarter notes.
void PonAccordo(Ascolto& a, const std::string& quarti) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        a.Voce(voce, std::to_string(accordo[voce]) + ";", quarti + ";", "n");
}

void PonQuattroVoci(Ascolto& a) {
    constexpr std::array<const char*, numeroVoci> note = {"72;74;76;74;", "64;65;67;65;",
                                                          "55;57;60;59;", "48;41;36;43;"};
    for (std::size_t voce = 0; voce < numeroVoci; ++voce)
        a.Voce(voce, note[voce], "1;1;1;1;", "nnnn");
}

/// How long it is loud, in seconds.
double Lunghezza(std::span<const float> suono) {
    constexpr double passo = 0.005;
    const double soglia = 0.1 * Picco(suono);
    int forti = 0;
    for (double quando = 0; !Parte(suono, quando, passo).empty(); quando += passo)
        if (Picco(Parte(suono, quando, passo)) > soglia) ++forti;
    return forti * passo;
}

}  // namespace

TEST(MelodiaUdita, EveryNoteSoundsAtItsPitchOnItsTick) {
    for (const int programma : {clavicembalo, xilofono}) {
        Ascolto a;
        a.Strumento(programma);
        a.finestra.play.Slider1.PonValore(120);
        a.Voce(soprano, "60;62;64;65;00;67;67;72;71;69;67;55;48;84;",
               "1;0.5;0.5;1.5;0.5;0.75;0.25;0.333333333333333;0.333333333333333;"
               "0.333333333333333;1;0.5;0.5;2;",
               "nnnnpnnnnnannn");
        a.Suona();
        const auto attese = a.Attese(soprano);
        ASSERT_EQ(attese.size(), 13U);
        EXPECT_DOUBLE_EQ(attese.back().inizio, a.Istante(8 * 32));
        const auto suono = a.Senti(a.Fine());
        if (programma == clavicembalo)
            EsigiAltezze(suono, attese);
        else
            EsigiAttacchi(suono, attese);
    }
}

TEST(MelodiaUdita, EachVoiceAloneSoundsAtItsOwnPitches) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        Ascolto a;
        a.Strumento(clavicembalo);
        PonQuattroVoci(a);
        const auto attese = a.Attese(voce);
        ASSERT_EQ(attese.size(), 4U);
        a.Solo(voce);
        a.Suona();
        EsigiAltezze(a.Senti(a.Fine()), attese);
    }
}

TEST(MelodiaUdita, InAChordEachVoiceComesThroughAndIsGoneWithItsBarAtTheSilentEnd) {
    Ascolto tutte;
    PonAccordo(tutte, "2");
    tutte.Strumento(organo);
    tutte.Suona();
    const auto insieme = tutte.Senti(1);
    for (std::size_t muta = 0; muta < numeroVoci; ++muta) {
        Ascolto a;
        PonAccordo(a, "2");
        a.Strumento(organo);
        a.finestra.mix.perVoce[muta].volume.PonValore(volumeMuto);
        a.Suona();
        const auto suono = a.Senti(1);
        for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
            const double prima = Forza(Parte(insieme, 0.3, 0.5), Hertz(accordo[voce]));
            const double dopo = Forza(Parte(suono, 0.3, 0.5), Hertz(accordo[voce]));
            EXPECT_GT(prima, 0.005) << voce;
            if (voce == muta)
                EXPECT_LT(dopo, 0.1 * prima) << voce;
            else
                EXPECT_NEAR(dopo, prima, 0.3 * prima) << voce << " without " << muta;
        }
    }
}

TEST(MelodiaUdita, AStaccatoNoteIsAFifthAndAnAppoggiatoNoteHalfAsLongAsAPlainOne) {
    for (const auto& [attributo, tick] : {std::pair{"n", 31}, {"t", 15}, {"s", 5}}) {
        Ascolto a;
        a.Strumento(organo);
        a.Voce(soprano, "60;00;", "1;1;", attributo + std::string("p"));
        a.Suona();
        EXPECT_NEAR(Lunghezza(a.Senti(a.Fine())), a.Secondi(tick), 0.06) << attributo;
    }
}

TEST(MelodiaUdita, AnAccentIsLouder) {
    Ascolto a;
    a.Voce(soprano, "60;00;60;00;", "1;3;1;3;", "npap");
    a.Suona();
    const auto suono = a.Senti(a.Fine());
    EXPECT_GT(Picco(Parte(suono, a.Istante(128), 1)), 1.2 * Picco(Parte(suono, a.Istante(0), 1)));
}

TEST(MelodiaUdita, PulsesAreHeardOnTheirTicksWhereTheVoicesRest) {
    Ascolto a;
    a.Voce(soprano, "00;", "8;", "p");
    a.finestra.pulsi.lblTs_Click();
    a.finestra.pulsi.Pulsazioni.PonTesto("1");
    a.Suona();
    const auto attacchi = Attacchi(a.Senti(a.Fine()));
    ASSERT_EQ(attacchi.size(), 8U);
    for (std::size_t i = 0; i < attacchi.size(); ++i)
        EXPECT_NEAR(attacchi[i], a.Istante(32 * static_cast<Tick>(i)), puntualita);
}

TEST(MelodiaUdita, NothingSoundsAfterTheEnd) {
    Ascolto a;
    PonAccordo(a, "2");
    a.Strumento(organo);
    a.Suona();
    const auto suono = a.Senti(a.Fine() + quiete);
    EXPECT_GT(Livello(Parte(suono, a.Fine() - 0.1, 0.05)), 0.01);
    EXPECT_EQ(Picco(Parte(suono, a.Fine() + quiete - 0.5, 0.5)), 0);
}

TEST(MelodiaUdita, NothingSoundsAfterARangeBeyondWhichItsNotesGoOn) {
    Ascolto a;
    PonAccordo(a, "8");
    a.Voce(soprano, "72;74;76;77;", "2;2;2;2;", "nnnn");
    a.Strumento(organo);
    a.melodia.voci[soprano].primaNota = 1;
    a.melodia.voci[soprano].ultimaNota = 2;
    a.Suona();
    EXPECT_NEAR(a.Fine(), a.Istante(4 * 32), a.Secondi(2));
    const auto suono = a.Senti(a.Fine() + quiete);
    EXPECT_GT(Livello(Parte(suono, a.Fine() - 0.1, 0.05)), 0.01);
    EXPECT_EQ(Picco(Parte(suono, a.Fine() + quiete - 0.5, 0.5)), 0);
}

TEST(MelodiaUdita, NothingSoundsAfterAStopInTheMidstOfNotesAndPulses) {
    Ascolto a;
    PonAccordo(a, "40");
    a.Strumento(organo);
    a.finestra.pulsi.lblTs_Click();
    a.FermaDopo(1.2);
    a.Suona();
    EXPECT_NEAR(a.Fine() - anticipo, 1.2, a.Secondi(1));
    const auto suono = a.Senti(a.Fine() + quiete);
    EXPECT_GT(Livello(Parte(suono, 1, 0.1)), 0.01);
    EXPECT_EQ(Picco(Parte(suono, a.Fine() + quiete - 0.5, 0.5)), 0);
}

}  // namespace corvana::prova
