// The program's sound as a user hears it: through the audio library, a sound server and its sink.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <vector>

#include "forms/real_clock.h"
#include "sound/outputs/real_outputs.h"
#include "sound/sound.h"
#include "tests/outputs/hearing.h"
#include "tests/outputs/sound_server.h"
#include "tests/support/scripted_boxes.h"

namespace corvana {
namespace {

using prova::Registrazione;
using prova::ServerSonoro;

/// The logic's side of a running program, with the machine's outputs.
class Programma {
public:
    explicit Programma(const ImpostazioniUscite& impostazioni = {})
        : uscite([this] { return pompa.Adesso(); }, impostazioni) {
        EXPECT_TRUE(suono.ApriMidi(dispositivoPredefinito));
    }

    OrologioReale orologio;
    CodaEventi coda;
    Pompa pompa{orologio, coda};
    prova::RiquadriDaCopione riquadri;
    UsciteReali uscite;
    Suono suono{uscite, pompa, riquadri};
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

/// The server plays what the program sounds; its own sound tells when to look again.
bool DiventaUdibile(const ServerSonoro& server, Programma& programma) {
    const Registrazione registrazione(server);
    return registrazione.Finche([&] { return programma.uscite.Udibile(); });
}

/// These notes are among those heard, in this order. Where one fades under the next, a third may
/// seem to sound for a moment: the common fundamental of both.
bool InOrdine(const std::vector<int>& udite, const std::vector<int>& attese) {
    auto udita = udite.begin();
    return std::all_of(attese.begin(), attese.end(), [&](int nota) {
        udita = std::find(udita, udite.end(), nota);
        if (udita == udite.end()) return false;
        ++udita;
        return true;
    });
}

/// What is heard until all these notes have come, for some seconds of sound at most.
std::vector<int> Ascolta(const Registrazione& registrazione, const std::vector<int>& attese) {
    constexpr int mezziSecondi = 16;
    std::vector<int> udite;
    for (int i = 0; i < mezziSecondi && !InOrdine(udite, attese) && registrazione.Ancora(0.5); ++i)
        udite = prova::NoteUdite(registrazione.Finora());
    return udite;
}

/// These notes are heard, in this order, while `suona` plays. Of a busy machine's sound a piece is
/// lost now and then; hardly three times.
template <typename Suona>
void AspettatiNote(const ServerSonoro& server, const std::vector<int>& attese, Suona suona) {
    std::vector<int> udite;
    for (int prove = 0; prove < 3 && !InOrdine(udite, attese); ++prove) {
        const Registrazione registrazione(server);
        ASSERT_TRUE(registrazione.InCorso());
        suona();
        udite = Ascolta(registrazione, attese);
    }
    EXPECT_TRUE(InOrdine(udite, attese)) << testing::PrintToString(udite);
}

void AspettatiNota(const ServerSonoro& server, Programma& programma, int nota) {
    AspettatiNote(server, {nota}, [&] {
        programma.suono.NotaOn(1, static_cast<std::int16_t>(nota), 127);
        programma.pompa.Attendi(0.5);
        programma.suono.Reset();
    });
}

TEST_F(FlussoAudioVero, TheOpeningSignalIsHeardWithAllItsNotesInTheirOrder) {
    AvviaServer();
    Programma programma;
    ASSERT_TRUE(DiventaUdibile(server, programma));
    AspettatiNote(server, {71, 72, 69, 64, 69}, [&] { programma.suono.SuonaSigla(1); });
}

TEST_F(FlussoAudioVero, ACueIsHeardInTheSameStream) {
    AvviaServer();
    Programma programma;
    ASSERT_TRUE(DiventaUdibile(server, programma));
    AspettatiNote(server, {88}, [&] {
        programma.suono.SuonaOnda(CORVANA_CUES "/rok.wav", sndAsincrono);
        programma.pompa.Attendi(0.4);
    });
}

/// Counts how often the device was opened. The counter outlives what may be left behind.
struct Conteggio {
    std::shared_ptr<std::atomic<int>> aperture = std::make_shared<std::atomic<int>>(0);
    ImpostazioniUscite ConQuiete(double secondi) const {
        return {.puntuale = [aperture = aperture] { ++*aperture; }, .quiete = secondi};
    }
};

TEST_F(FlussoAudioVero, InSilenceTheDeviceIsLetGoAndWhoeverWakesTheStreamIsHeard) {
    AvviaServer();
    const Conteggio conteggio;
    Programma programma(conteggio.ConQuiete(0));
    ASSERT_TRUE(DiventaUdibile(server, programma));
    {
        const Registrazione registrazione(server);
        EXPECT_TRUE(registrazione.Finche([&] {
            programma.uscite.Sveglia();
            return *conteggio.aperture >= 3;
        }));
    }
    EXPECT_TRUE(programma.uscite.Udibile());
    AspettatiNota(server, programma, 67);
}

TEST_F(FlussoAudioVero, AMomentOfSilenceLeavesTheDeviceOpen) {
    AvviaServer();
    const Conteggio conteggio;
    Programma programma(conteggio.ConQuiete(3600));
    ASSERT_TRUE(DiventaUdibile(server, programma));
    for (const int nota : {60, 67})
        AspettatiNota(server, programma, nota);
    EXPECT_EQ(*conteggio.aperture, 1);
}

TEST_F(FlussoAudioVero, AServerThatDiesHoldsNothingUpAndOneThatComesBackIsTakenUp) {
    AvviaServer();
    Programma programma;
    ASSERT_TRUE(DiventaUdibile(server, programma));
    programma.suono.NotaOn(1, 60, 127);
    server.Uccidi();
    // It looks for the server again only once it has noticed.
    EXPECT_TRUE(server.AspettaChiLoCerca());
    EXPECT_FALSE(programma.uscite.Udibile());
    for (int i = 0; i < 5000; ++i)
        programma.suono.NotaOn(1, 60, 100);
    EXPECT_TRUE(programma.riquadri.messaggi.empty());
    AvviaServer();
    EXPECT_TRUE(DiventaUdibile(server, programma));
    AspettatiNota(server, programma, 67);
}

TEST_F(FlussoAudioVero, WithoutADeviceEverythingWorksUnheardUntilOneAppears) {
    Programma programma;
    EXPECT_FALSE(programma.uscite.Udibile());
    programma.suono.CambiaStrumento(73, 0);
    for (int i = 0; i < 5000; ++i)
        programma.suono.NotaOn(1, 60, 100);
    EXPECT_TRUE(programma.riquadri.messaggi.empty());
    AvviaServer();
    EXPECT_TRUE(DiventaUdibile(server, programma));
    AspettatiNota(server, programma, 69);
}

TEST_F(FlussoAudioVero, AServerThatNoLongerAnswersHoldsUpNeitherTheLogicNorTheEnd) {
    AvviaServer();
    {
        Programma programma;
        ASSERT_TRUE(DiventaUdibile(server, programma));
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
