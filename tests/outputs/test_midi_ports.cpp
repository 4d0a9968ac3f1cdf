// Through real MIDI ports, of a server that has no hardware.
#include <gtest/gtest.h>
#include <stdlib.h>

#include "sound/outputs/real_outputs.h"
#include "tests/outputs/midi_server.h"
#include "tests/outputs/rendering.h"

namespace corvana {
namespace {

using prova::Pacco;
using prova::PortaRicevente;
using prova::ServerMidi;
using Byte = std::vector<std::uint8_t>;

class PorteVere : public testing::Test {
protected:
    void SetUp() override { setenv("SDL_AUDIODRIVER", "dummy", 1); }

    void AvviaServer() {
        ASSERT_TRUE(server.Avvia())
            << "needs jackd2; run without these tests by: ctest -LE servers";
    }
    static bool SiChiama(UsciteReali& uscite, int id, const std::string& nome) {
        std::string suo;
        EXPECT_EQ(uscite.midiOutGetDevCapsA(id, suo), midiSenzaErrore);
        EXPECT_LE(suo.size(), 31U);
        return suo.find(nome) != std::string::npos;
    }
    /// The device of the port that is called `nome`.
    static int Dispositivo(UsciteReali& uscite, const std::string& nome) {
        // A search that a busy machine holds up, the next one goes on with.
        for (int ricerche = 0; ricerche < 120; ++ricerche) {
            const int quanti = uscite.midiOutGetNumDevs();
            for (int id = 0; id < quanti; ++id)
                if (SiChiama(uscite, id, nome)) return id;
        }
        ADD_FAILURE() << nome << " isn't found";
        return -2;
    }
    /// Sends until the loss of the port is told, with an exchange with the server each time.
    bool SiPerde(UsciteReali& uscite, HandleDispositivo handle) const {
        constexpr int tentativi = 1000;
        for (int i = 0; i < tentativi; ++i) {
            if (uscite.midiOutShortMsg(handle, 0x643C90) != midiSenzaErrore) return true;
            // An answer that fails has given the server its time too.
            server.Risponde();
        }
        return false;
    }
    static HandleDispositivo Apri(UsciteReali& uscite, const std::string& nome) {
        // The program waits for a port for a moment only, which a busy machine may let pass; who
        // wants the port asks for it again.
        HandleDispositivo handle = 0;
        for (int richieste = 0; richieste < 60 && handle == 0; ++richieste)
            uscite.midiOutOpen(handle, Dispositivo(uscite, nome));
        EXPECT_NE(handle, 0) << nome << " doesn't open";
        return handle;
    }

    PortaRicevente& Ricevente(const std::string& nome) {
        return *riceventi.emplace_back(std::make_unique<PortaRicevente>(nome));
    }

    // The server ends before the ports: the other way round it would wait for their answers.
    std::vector<std::unique_ptr<PortaRicevente>> riceventi;
    ServerMidi server;
};

TEST_F(PorteVere, BytesArriveAsTheyAreMeantAndAResetReachesAllChannels) {
    AvviaServer();
    const PortaRicevente& ricevente = Ricevente("sintetizzatore");
    UsciteReali uscite([] { return 0.0; });
    const HandleDispositivo handle = Apri(uscite, "sintetizzatore");
    for (const std::uint32_t pacco : {0x643C90U, 0x7F4C99U, 0x10C1U, Pacco(0x90, 532, 0), 0x123U})
        EXPECT_EQ(uscite.midiOutShortMsg(handle, pacco), midiSenzaErrore);
    EXPECT_EQ(uscite.midiOutReset(handle), midiSenzaErrore);
    ASSERT_TRUE(ricevente.Arrivano(36));
    const auto arrivati = ricevente.Arrivati();
    EXPECT_EQ(arrivati.size(), 36U);
    EXPECT_EQ(arrivati[0], (Byte{0x90, 60, 100}));
    EXPECT_EQ(arrivati[1], (Byte{0x99, 76, 127}));
    EXPECT_EQ(arrivati[2], (Byte{0xC1, 16}));
    EXPECT_EQ(arrivati[3], (Byte{0x90, 20, 2}));
    EXPECT_EQ(arrivati[4], (Byte{0xB0, 120, 0}));
    EXPECT_EQ(arrivati[35], (Byte{0xBF, 121, 0}));
}

TEST_F(PorteVere, ClosingAPortLeavesItSilent) {
    AvviaServer();
    const PortaRicevente& ricevente = Ricevente("sintetizzatore");
    UsciteReali uscite([] { return 0.0; });
    const HandleDispositivo handle = Apri(uscite, "sintetizzatore");
    uscite.midiOutShortMsg(handle, 0x643C90);
    EXPECT_EQ(uscite.midiOutClose(handle), midiSenzaErrore);
    EXPECT_EQ(uscite.midiOutShortMsg(handle, 0x643C90), midiHandleErrato);
    ASSERT_TRUE(ricevente.Arrivano(33));
    EXPECT_EQ(ricevente.Arrivati().front(), (Byte{0x90, 60, 100}));
}

TEST_F(PorteVere, WithoutAServerThereAreNoPortsAndTheSynthesiserIsThere) {
    UsciteReali uscite([] { return 0.0; });
    const int quante = uscite.midiOutGetNumDevs();
    for (int id = 0; id < quante; ++id)
        EXPECT_FALSE(SiChiama(uscite, id, "sintetizzatore"));
    HandleDispositivo handle = 0;
    EXPECT_EQ(uscite.midiOutOpen(handle, 99), midiDispositivoErrato);
    EXPECT_EQ(handle, 0);
    EXPECT_EQ(uscite.midiOutOpen(handle, -5), midiDispositivoErrato);
    EXPECT_EQ(uscite.midiOutOpen(handle, dispositivoPredefinito), midiSenzaErrore);
    EXPECT_NE(handle, 0);
}

TEST_F(PorteVere, APortThatHasGoneSinceTheSearchDoesNotOpen) {
    AvviaServer();
    UsciteReali uscite([] { return 0.0; });
    Ricevente("sintetizzatore");
    const int id = Dispositivo(uscite, "sintetizzatore");
    riceventi.clear();
    HandleDispositivo handle = 0;
    EXPECT_EQ(uscite.midiOutOpen(handle, id), midiSenzaDriver);
    EXPECT_EQ(handle, 0);
}

TEST_F(PorteVere, APortThatVanishesIsToldOnceAndHoldsNothingUp) {
    AvviaServer();
    Ricevente("sintetizzatore");
    UsciteReali uscite([] { return 0.0; });
    const HandleDispositivo handle = Apri(uscite, "sintetizzatore");
    riceventi.clear();
    EXPECT_TRUE(SiPerde(uscite, handle));
    EXPECT_EQ(uscite.midiOutShortMsg(handle, 0x643C90), midiSenzaErrore);
    EXPECT_EQ(uscite.midiOutClose(handle), midiSenzaErrore);
}

TEST_F(PorteVere, ThePortsCanBeCountedAnewWhileOneIsOpen) {
    AvviaServer();
    const PortaRicevente& prima = Ricevente("sintetizzatore");
    UsciteReali uscite([] { return 0.0; });
    const HandleDispositivo handle = Apri(uscite, "sintetizzatore");
    Ricevente("altro");
    EXPECT_GE(Dispositivo(uscite, "altro"), 0);
    EXPECT_EQ(uscite.midiOutShortMsg(handle, 0x643C90), midiSenzaErrore);
    ASSERT_TRUE(prima.Arrivano(1));
    EXPECT_EQ(prima.Arrivati().size(), 1U);
}

TEST_F(PorteVere, AServerThatDiesHoldsNothingUpAndOneThatComesBackIsFound) {
    AvviaServer();
    Ricevente("sintetizzatore");
    UsciteReali uscite([] { return 0.0; });
    HandleDispositivo handle = Apri(uscite, "sintetizzatore");
    server.Uccidi();
    riceventi.clear();
    for (int i = 0; i < 20'000; ++i)
        uscite.midiOutShortMsg(handle, 0x643C90);
    uscite.midiOutGetNumDevs();
    EXPECT_EQ(uscite.midiOutClose(handle), midiSenzaErrore);
    AvviaServer();
    const PortaRicevente& ricevente = Ricevente("sintetizzatore");
    handle = Apri(uscite, "sintetizzatore");
    EXPECT_EQ(uscite.midiOutShortMsg(handle, 0x643C90), midiSenzaErrore);
    ASSERT_TRUE(ricevente.Arrivano(1));
    EXPECT_EQ(ricevente.Arrivati().size(), 1U);
}

TEST_F(PorteVere, AServerThatStopsHoldsUpNeitherTheLogicNorTheEnd) {
    AvviaServer();
    Ricevente("sintetizzatore");
    auto uscite = std::make_unique<UsciteReali>([] { return 0.0; });
    const HandleDispositivo handle = Apri(*uscite, "sintetizzatore");
    const int quante = uscite->midiOutGetNumDevs();
    server.Sospendi();
    for (int i = 0; i < 20'000; ++i)
        uscite->midiOutShortMsg(handle, 0x643C90);
    EXPECT_EQ(uscite->midiOutGetNumDevs(), quante);
    uscite->midiOutClose(handle);
    uscite.reset();
    server.Uccidi();
}

}  // namespace
}  // namespace corvana
