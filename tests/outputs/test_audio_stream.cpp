// The program's sound as a user hears it: through the audio library, a sound server and its sink.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "forms/real_clock.h"
#include "sound/outputs/real_outputs.h"
#include "sound/sound.h"
#include "tests/outputs/hearing.h"
#include "tests/outputs/rendering.h"
#include "tests/outputs/sound_server.h"
#include "tests/support/scripted_dialogs.h"

namespace corvana {
namespace {

using prova::Registrazione;
using prova::ServerSonoro;

/// The logic's side of a running program, with the machine's outputs.
class Programma {
public:
    Programma() { EXPECT_TRUE(suono.ApriMidi(dispositivoPredefinito)); }

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

/// The server plays what the program sounds; its own sound tells when to look again.
bool DiventaUdibile(const ServerSonoro& server, Programma& programma) {
    const Registrazione registrazione(server);
    return registrazione.Finche([&] { return programma.uscite.Udibile(); });
}

/// The recording holds that note and, but for silence, nothing else.
void AspettatiNota(const std::vector<float>& suono, int nota) {
    const double meta = 0.5 * prova::Picco(suono);
    const auto forte = std::find_if(suono.begin(), suono.end(),
                                    [&](float campione) { return std::fabs(campione) > meta; });
    const double quando = static_cast<double>(forte - suono.begin()) / prova::frequenzaUdito;
    EXPECT_NEAR(prova::NotaMidi(prova::Altezza(prova::Parte(suono, quando, 0.2))), nota, 0.2);
}

constexpr std::array<int, 5> sigla = {71, 72, 69, 64, 69};
constexpr double silenzioPrima = 0.3;

std::vector<float> RegistraSigla(const ServerSonoro& server) {
    Programma programma;
    EXPECT_TRUE(programma.uscite.Udibile());
    Registrazione registrazione(server);
    EXPECT_TRUE(registrazione.InCorso());
    programma.pompa.Attendi(silenzioPrima);
    programma.suono.SuonaSigla(1);
    programma.pompa.Attendi(0.2);
    return registrazione.Ferma();
}

/// Where the signal's notes begin in a recording: each is looked for near its place.
std::vector<double> InizioNote(const std::vector<float>& suono) {
    std::vector<double> inizi;
    for (const int nota : sigla) {
        prova::Resa sola;
        sola.Nota(0, nota, 127);
        const double intorno = inizi.empty() ? silenzioPrima + 0.05 : inizi.back() + 0.35;
        inizi.push_back(prova::Ritrova(suono, sola.Ascolta(0.25), intorno, 0.1));
    }
    return inizi;
}

/// The largest deviation from the notes' places, in seconds.
double Scarto(const std::vector<double>& inizi) {
    double scarto = 0;
    for (std::size_t i = 1; i < inizi.size(); ++i)
        scarto = std::max(scarto, std::fabs(inizi[i] - inizi[i - 1] - 0.35));
    return scarto;
}

TEST_F(FlussoAudioVero, TheOpeningSignalIsHeardWithItsNotesAndItsTiming) {
    constexpr double tolleranza = 0.015;
    AvviaServer();
    std::vector<float> suono;
    std::vector<double> inizi;
    // A machine that is busy with other things drops sound now and then; hardly three times.
    for (int prove = 0; prove < 3 && (prove == 0 || Scarto(inizi) > tolleranza); ++prove) {
        suono = RegistraSigla(server);
        inizi = InizioNote(suono);
    }
    EXPECT_LE(Scarto(inizi), tolleranza);
    for (std::size_t i = 0; i < sigla.size(); ++i) {
        const auto nota = prova::Parte(suono, inizi[i] + 0.08, 0.2);
        EXPECT_NEAR(prova::NotaMidi(prova::Altezza(nota)), sigla[i], 0.2);
    }
}

TEST_F(FlussoAudioVero, ACueIsHeardInTheSameStream) {
    AvviaServer();
    Programma programma;
    ASSERT_TRUE(programma.uscite.Udibile());
    Registrazione registrazione(server);
    programma.pompa.Attendi(0.2);
    programma.suono.SuonaOnda(CORVANA_CUES "/rok.wav", sndAsincrono);
    programma.pompa.Attendi(0.4);
    AspettatiNota(registrazione.Ferma(), 88);
}

TEST_F(FlussoAudioVero, AServerThatDiesHoldsNothingUpAndOneThatComesBackIsTakenUp) {
    AvviaServer();
    Programma programma;
    ASSERT_TRUE(programma.uscite.Udibile());
    programma.suono.NotaOn(1, 60, 127);
    server.Uccidi();
    // It looks for the server again only once it has noticed.
    EXPECT_TRUE(server.AspettaChiLoCerca());
    EXPECT_FALSE(programma.uscite.Udibile());
    for (int i = 0; i < 5000; ++i)
        programma.suono.NotaOn(1, 60, 100);
    EXPECT_TRUE(programma.dialoghi.messaggi.empty());
    AvviaServer();
    EXPECT_TRUE(DiventaUdibile(server, programma));
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
    EXPECT_TRUE(DiventaUdibile(server, programma));
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
        programma.suono.SuonaOnda(CORVANA_CUES "/rok.wav", sndAsincrono);
    }
    server.Uccidi();
}

}  // namespace
}  // namespace corvana
