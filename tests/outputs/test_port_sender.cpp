#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <span>
#include <vector>

#include "sound/outputs/port_sender.h"
#include "sound/outputs/short_message.h"
#include "tests/outputs/rendering.h"

namespace corvana {
namespace {

using prova::Pacco;
using Byte = std::vector<std::uint8_t>;

/// What a port that doesn't exist has been sent; a test can make it stick or break.
struct Banco {
    std::mutex blocco;
    std::condition_variable cambiato;
    std::vector<Byte> arrivati;
    bool rotta = false;
    bool bloccata = false;
    bool chiusa = false;
    bool finito = false;  ///< the sender's thread has ended

    std::vector<Byte> Arrivati() {
        const std::lock_guard guardia(blocco);
        return arrivati;
    }
    void Pon(bool& quale, bool valore) {
        const std::lock_guard guardia(blocco);
        quale = valore;
        cambiato.notify_all();
    }
    void Metti(std::span<const std::uint8_t> byte) {
        arrivati.emplace_back(byte.begin(), byte.end());
        cambiato.notify_all();
    }
    /// False when a generous time doesn't bring it about.
    bool Aspetta(const std::function<bool()>& condizione) {
        std::unique_lock guardia(blocco);
        return cambiato.wait_for(guardia, std::chrono::seconds(60), condizione);
    }
};

class PortaFinta final : public PortaUscita {
public:
    explicit PortaFinta(std::shared_ptr<Banco> banco) : banco_(std::move(banco)) {}
    ~PortaFinta() override { banco_->Pon(banco_->chiusa, true); }

    bool Invia(std::span<const std::uint8_t> byte) override {
        std::unique_lock guardia(banco_->blocco);
        banco_->cambiato.wait(guardia, [this] { return !banco_->bloccata; });
        if (banco_->rotta) return false;
        banco_->Metti(byte);
        return true;
    }

private:
    std::shared_ptr<Banco> banco_;
};

/// Tells the end of the thread that it was made for.
struct Congedo {
    std::shared_ptr<Banco> banco;
    ~Congedo() {
        if (banco) banco->Pon(banco->finito, true);
    }
};

class MittenteAProva : public testing::Test {
protected:
    AperturaPorta Apertura() {
        return [banco = banco] {
            thread_local Congedo congedo;
            congedo.banco = banco;
            return std::make_unique<PortaFinta>(banco);
        };
    }
    bool Arrivano(std::size_t quanti) {
        return banco->Aspetta([&] { return banco->arrivati.size() >= quanti; });
    }

    std::shared_ptr<Banco> banco = std::make_shared<Banco>();
};

TEST_F(MittenteAProva, SendsMaskedBytesOfTheRightLengthInOrder) {
    MittentePorta mittente(Apertura());
    ASSERT_TRUE(mittente.Aperta(20));
    EXPECT_TRUE(mittente.Invia(Pacco(0x90, 60, 100)));
    EXPECT_TRUE(mittente.Invia(Pacco(0x90, 532, 0)));
    EXPECT_TRUE(mittente.Invia(0x10C1));
    EXPECT_TRUE(mittente.Invia(Pacco(0xD2, 200, 5)));
    ASSERT_TRUE(Arrivano(4));
    EXPECT_EQ(banco->Arrivati(),
              (std::vector<Byte>{{0x90, 60, 100}, {0x90, 20, 2}, {0xC1, 16}, {0xD2, 72}}));
}

TEST_F(MittenteAProva, DropsWhatIsNoMessageOfAChannel) {
    MittentePorta mittente(Apertura());
    for (const int stato : {0x00, 0x7F, 0xF0, 0xFF})
        EXPECT_TRUE(mittente.Invia(Pacco(stato, 1, 1)));
    mittente.Invia(Pacco(0x90, 60, 1));
    ASSERT_TRUE(Arrivano(1));
    EXPECT_EQ(banco->Arrivati(), (std::vector<Byte>{{0x90, 60, 1}}));
}

TEST_F(MittenteAProva, AResetSilencesAllSixteenChannels) {
    MittentePorta mittente(Apertura());
    mittente.Azzera();
    ASSERT_TRUE(Arrivano(32));
    std::vector<Byte> attesi;
    for (int canale = 0; canale < 16; ++canale)
        for (const int controllo : {120, 121})
            attesi.push_back({static_cast<std::uint8_t>(0xB0 + canale),
                              static_cast<std::uint8_t>(controllo), 0});
    EXPECT_EQ(banco->Arrivati(), attesi);
}

TEST_F(MittenteAProva, ClosingSendsWhatWaitsThenSilencesAndCloses) {
    {
        MittentePorta mittente(Apertura());
        mittente.Invia(Pacco(0x90, 60, 100));
        mittente.Chiudi();
        ASSERT_TRUE(banco->Aspetta([&] { return banco->finito; }));
        EXPECT_TRUE(mittente.Finita());
    }
    EXPECT_TRUE(banco->chiusa);
    EXPECT_EQ(banco->Arrivati().size(), 33U);
    EXPECT_EQ(banco->Arrivati().front(), (Byte{0x90, 60, 100}));
}

TEST_F(MittenteAProva, APortThatSticksHoldsUpNeitherTheSenderNorItsEnd) {
    {
        MittentePorta mittente(Apertura());
        ASSERT_TRUE(mittente.Aperta(20));
        banco->Pon(banco->bloccata, true);
        for (int i = 0; i < 10'000; ++i)
            EXPECT_TRUE(mittente.Invia(Pacco(0x90, 60, 100)));
    }
    // Left behind, it still ends by itself when the port comes loose: with a reset, since what had
    // no room was given up.
    banco->Pon(banco->bloccata, false);
    EXPECT_TRUE(banco->Aspetta([&] { return banco->chiusa; }));
    EXPECT_LT(banco->Arrivati().size(), messaggiPerPorta + 100);
    EXPECT_EQ(banco->Arrivati().back(), (Byte{0xBF, 121, 0}));
}

TEST_F(MittenteAProva, ALostPortIsToldOnce) {
    MittentePorta mittente(Apertura());
    ASSERT_TRUE(mittente.Aperta(20));
    banco->Pon(banco->rotta, true);
    EXPECT_TRUE(mittente.Invia(Pacco(0x90, 60, 100)));
    // At the end of its thread, if not before, the sender knows.
    mittente.Chiudi();
    ASSERT_TRUE(banco->Aspetta([&] { return banco->finito; }));
    EXPECT_FALSE(mittente.Invia(Pacco(0x90, 60, 100)));
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(mittente.Invia(Pacco(0x90, 60, 100)));
    EXPECT_FALSE(mittente.Aperta(0));
}

TEST_F(MittenteAProva, APortThatDoesNotOpenIsSaidNotToBeOpen) {
    MittentePorta chiuso([] { return std::unique_ptr<PortaUscita>(); });
    EXPECT_FALSE(chiuso.Aperta(20));
    MittentePorta lento([banco = banco] {
        std::unique_lock guardia(banco->blocco);
        banco->cambiato.wait(guardia, [&] { return banco->rotta; });
        return std::unique_ptr<PortaUscita>();
    });
    EXPECT_FALSE(lento.Aperta(0.01));
    banco->Pon(banco->rotta, true);
}

}  // namespace
}  // namespace corvana
