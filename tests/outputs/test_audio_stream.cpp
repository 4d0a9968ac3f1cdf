// The program's sound as a user hears it: through the audio library, a sound server and its sink.
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "forms/real_clock.h"
#include "sound/outputs/real_outputs.h"
#include "sound/sound.h"
#include "tests/outputs/hearing.h"
#include "tests/outputs/sound_server.h"
#include "tests/support/scripted_dialogs.h"

namespace corvana {
namespace {

using prova::Aspetta;
using prova::Registrazione;
using prova::ServerSonoro;

/// The logic's side of a running program, with the machine's outputs.
class Programma {
public:
    Programma() {
        PreferisciPuntualita();
        EXPECT_TRUE(suono.ApriMidi(dispositivoPredefinito));
    }

    OrologioReale orologio;
    CodaEventi coda;
    Pompa pompa{orologio, coda};
    prova::DialoghiDaCopione dialoghi;
    UsciteReali uscite{[this] { return pompa.Adesso(); }};
    Suono suono{uscite, pompa, dialoghi};
};

class FlussoAudioVero : public testing::Test {
protected:
    void SetUp() override { server.UsaInQuestoProcesso(); }
    void AvviaServer() {
        ASSERT_TRUE(server.Avvia())
            << "needs pulseaudio; run without these tests by: ctest -LE servers";
    }

    ServerSonoro server;
};

/// What a note played alone sounds like in a recording.
std::vector<float> Registra(const ServerSonoro& server, Programma& programma, int nota) {
    Registrazione registrazione(server);
    EXPECT_TRUE(registrazione.InCorso());
    programma.suono.NotaOn(1, static_cast<std::int16_t>(nota), 127);
    programma.pompa.Attendi(0.5);
    programma.suono.Reset();
    return registrazione.Ferma();
}

void AspettatiNota(const std::vector<float>& suono, int nota) {
    const auto attacchi = prova::Attacchi(suono);
    ASSERT_FALSE(attacchi.empty());
    EXPECT_NEAR(prova::NotaMidi(prova::Altezza(prova::Parte(suono, attacchi[0] + 0.05, 0.2))), nota,
                0.2);
}

TEST_F(FlussoAudioVero, TheOpeningSignalIsHeardWithItsNotesAndItsTiming) {
    constexpr std::array<int, 5> sigla = {71, 72, 69, 64, 69};
    constexpr double passo = 0.35;
    constexpr double tolleranza = 0.015;
    AvviaServer();
    Programma programma;
    ASSERT_TRUE(programma.uscite.Udibile());
    Registrazione registrazione(server);
    ASSERT_TRUE(registrazione.InCorso());
    programma.suono.SuonaSigla(1);
    programma.pompa.Attendi(0.2);
    const auto suono = registrazione.Ferma();
    const auto attacchi = prova::Attacchi(suono);
    ASSERT_EQ(attacchi.size(), sigla.size());
    for (std::size_t i = 0; i < sigla.size(); ++i) {
        const auto nota = prova::Parte(suono, attacchi[i] + 0.08, 0.2);
        EXPECT_NEAR(prova::NotaMidi(prova::Altezza(nota)), sigla[i], 0.2);
        EXPECT_NEAR(attacchi[i] - attacchi[0], static_cast<double>(i) * passo, tolleranza);
    }
}

TEST_F(FlussoAudioVero, AServerThatDiesHoldsNothingUpAndOneThatComesBackIsTakenUp) {
    AvviaServer();
    Programma programma;
    ASSERT_TRUE(programma.uscite.Udibile());
    programma.suono.NotaOn(1, 60, 127);
    server.Uccidi();
    EXPECT_TRUE(Aspetta([&] { return !programma.uscite.Udibile(); }));
    for (int i = 0; i < 5000; ++i)
        programma.suono.NotaOn(1, 60, 100);
    EXPECT_TRUE(programma.dialoghi.messaggi.empty());
    AvviaServer();
    EXPECT_TRUE(Aspetta([&] { return programma.uscite.Udibile(); }));
    AspettatiNota(Registra(server, programma, 67), 67);
}

TEST_F(FlussoAudioVero, WithoutADeviceEverythingWorksUnheardUntilOneAppears) {
    Programma programma;
    EXPECT_FALSE(programma.uscite.Udibile());
    programma.suono.CambiaStrumento(73, 0);
    for (int i = 0; i < 5000; ++i)
        programma.suono.NotaOn(1, 60, 100);
    EXPECT_TRUE(programma.dialoghi.messaggi.empty());
    AvviaServer();
    EXPECT_TRUE(Aspetta([&] { return programma.uscite.Udibile(); }));
    AspettatiNota(Registra(server, programma, 69), 69);
}

TEST_F(FlussoAudioVero, AServerThatNoLongerAnswersHoldsUpNeitherTheLogicNorTheEnd) {
    AvviaServer();
    {
        Programma programma;
        ASSERT_TRUE(programma.uscite.Udibile());
        server.Sospendi();
        for (int i = 0; i < 5000; ++i)
            programma.suono.NotaOn(1, 60, 100);
        programma.suono.ChiudiMidi();
    }
    server.Uccidi();
}

TEST_F(FlussoAudioVero, AServerThatNeverAnswersHoldsUpNeitherTheStartNorTheEnd) {
    AvviaServer();
    server.Sospendi();
    {
        Programma programma;
        EXPECT_FALSE(programma.uscite.Udibile());
        programma.suono.NotaOn(1, 60, 100);
    }
    server.Uccidi();
}

}  // namespace
}  // namespace corvana
