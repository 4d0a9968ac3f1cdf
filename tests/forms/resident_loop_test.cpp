// A window with a loop that goes on while it is open, and the windows that are opened over it.
#include <gtest/gtest.h>

#include "forms/fault.h"
#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {

using Diario = std::vector<std::string>;

/// Counts its passes, each of which waits for events.
class FinestraCheCicla final : public Form {
public:
    explicit FinestraCheCicla(Banco& banco) : Form("frmCiclo"), banco_(banco) {
        apri.Click = [this] {
            livelli.push_back(__builtin_frame_address(0));
            diario.emplace_back("open");
            banco_.finestre.MostraModale(sopra);
            diario.emplace_back("opened");
        };
        altro.Click = [this] { diario.emplace_back("click"); };
        chiudi.Click = [this] { banco_.finestre.Scarica(*this); };
        sopra.chiudi.Click = [this] { banco_.finestre.Scarica(sopra); };
    }

    Bottone apri{*this, "apri"}, altro{*this, "altro"}, chiudi{*this, "chiudi"};
    struct Sopra : Form {
        Sopra() : Form("frmSopra") {}
        Bottone chiudi{*this, "chiudi"};
    } sopra;

    Diario diario;
    std::vector<void*> livelli;  ///< where on the stack its handler stood at each visit
    int attivata = 0;
    bool fine = false;
    std::function<void()> aOgniGiro, allAttivazione;

    void Form_Activate() override {
        ++attivata;
        diario.emplace_back("activate");
        if (allAttivazione) allAttivazione();
    }
    void CicloResidente() override {
        diario.emplace_back("loop");
        for (fine = false; !fine;) {
            banco_.pompa.AttendiEvento(perSempre);
            diario.emplace_back("pass");
            if (aOgniGiro) aOgniGiro();
        }
        diario.emplace_back("end");
    }
    void Form_Unload(bool& /*Cancel*/) override {
        fine = true;
        diario.emplace_back("unload");
    }

private:
    Banco& banco_;
};

struct BancoCiclo : Banco {
    FinestraProva principale;
    FinestraCheCicla finestra{*this};

    BancoCiclo() {
        finestre.Mostra(principale);
        principale.dentro.Click = [this] {
            finestre.MostraModale(finestra);
            finestra.diario.emplace_back("gone");
        };
        Clicca(0, "dentro");
    }
    bool Corri() {
        return SvolgiCopione([this] { finestre.FinoAllUltima(); });
    }
};

}  // namespace

TEST(CicloResidente, RunsAfterTheActivationUntilTheWindowCloses) {
    BancoCiclo b;
    b.Clicca(1, "altro");
    b.Clicca(2, "chiudi");
    b.Fine(3);
    EXPECT_TRUE(b.Corri());
    EXPECT_EQ(b.finestra.diario,
              (Diario{"activate", "loop", "click", "pass", "unload", "pass", "end", "gone"}));
    EXPECT_EQ(b.finestre.Davanti(), &b.principale);
}

TEST(CicloResidente, GoesOnWhereItWasWhenTheUserComesBackFromAModalWindow) {
    BancoCiclo b;
    b.Clicca(1, "apri");
    b.Clicca(2, "chiudi");
    b.Clicca(3, "altro");
    b.Clicca(4, "chiudi");
    b.Fine(5);
    EXPECT_TRUE(b.Corri());
    EXPECT_EQ(b.finestra.diario, (Diario{"activate", "loop", "open", "activate", "opened", "pass",
                                         "click", "pass", "unload", "pass", "end", "gone"}));
}

TEST(CicloResidente, TheStackIsAsDeepAfterTenThousandVisitsAsAtTheFirst) {
    constexpr int visite = 10'000;
    BancoCiclo b;
    for (int i = 0; i < visite; ++i) {
        b.Clicca(1 + 2 * i, "apri");
        b.Clicca(2 + 2 * i, "chiudi");
    }
    b.Clicca(3 * visite, "chiudi");
    b.Fine(3 * visite + 1);
    EXPECT_TRUE(b.Corri());
    ASSERT_EQ(b.finestra.livelli.size(), visite);
    EXPECT_EQ(b.finestra.livelli.front(), b.finestra.livelli.back());
    EXPECT_EQ(b.finestra.attivata, visite + 1);
    const auto volte = [&](const char* riga) {
        return std::count(b.finestra.diario.begin(), b.finestra.diario.end(), riga);
    };
    EXPECT_EQ(volte("loop"), 1);
    EXPECT_EQ(volte("end"), 1);
    EXPECT_EQ(b.finestra.diario.back(), "gone");
}

TEST(CicloResidente, StandsStillWhileAHandlerOrAModalWindowRunsOnTopOfIt) {
    BancoCiclo b;
    b.Clicca(1, "apri");
    b.Fa(2, Fatto::Click, "");
    b.Fa(3, Fatto::Click, "");
    b.Fine(4);
    EXPECT_TRUE(b.Corri());
    EXPECT_EQ(b.finestra.diario, (Diario{"activate", "loop", "open"}));
}

TEST(CicloResidente, OneThatHadReturnedBeginsAnewWithTheNextActivation) {
    BancoCiclo b;
    b.Quando(1, [&] { b.finestra.fine = true; });
    b.Clicca(1, "altro");
    b.Clicca(2, "apri");
    b.Clicca(3, "chiudi");
    b.Clicca(4, "chiudi");
    b.Fine(5);
    EXPECT_TRUE(b.Corri());
    EXPECT_EQ(b.finestra.diario,
              (Diario{"activate", "loop", "click", "pass", "end", "open", "activate", "loop",
                      "unload", "pass", "end", "opened", "gone"}));
}

TEST(CicloResidente, AFaultInItIsShownAndItBeginsAnewAtTheNextEvent) {
    BancoCiclo b;
    b.finestra.aOgniGiro = [&] {
        b.finestra.aOgniGiro = nullptr;
        throw Guasto(6, "Overflow");
    };
    b.Clicca(1, "altro");
    b.Clicca(2, "altro");
    b.Clicca(3, "chiudi");
    b.Fine(4);
    EXPECT_TRUE(b.Corri());
    EXPECT_EQ(b.riquadri.messaggi, (Diario{"6\r\nOverflow"}));
    EXPECT_EQ(b.finestra.diario, (Diario{"activate", "loop", "click", "pass", "click", "loop",
                                         "unload", "pass", "end", "gone"}));
}

TEST(CicloResidente, OneThatFailsAtOnceCanStillBeClosed) {
    BancoCiclo b;
    b.finestra.aOgniGiro = [] { throw Guasto(6, "Overflow"); };
    for (int i = 1; i <= 3; ++i)
        b.Clicca(i, "altro");
    b.Clicca(4, "chiudi");
    b.Fine(5);
    EXPECT_TRUE(b.Corri());
    EXPECT_EQ(b.finestra.diario.back(), "gone");
}

TEST(CicloResidente, TheEndOfTheProgramEndsIt) {
    for (const bool visita : {false, true}) {
        BancoCiclo b;
        if (visita) b.Clicca(1, "apri");
        b.Quando(2, [&] { b.coda.ChiediFine(); });
        EXPECT_FALSE(b.Corri());
        EXPECT_EQ(b.finestra.diario.back(), "unload") << visita;
        EXPECT_EQ(b.finestre.Davanti(), nullptr);
    }
}

TEST(CicloResidente, AWindowThatClosesItselfOnActivationHasNone) {
    BancoCiclo b;
    b.finestra.allAttivazione = [&] { b.finestre.Scarica(b.finestra); };
    b.Fine(1);
    EXPECT_TRUE(b.Corri());
    EXPECT_EQ(b.finestra.diario, (Diario{"activate", "unload", "gone"}));
}

TEST(CicloResidente, RunsInEachShowingOfTheSameWindow) {
    BancoCiclo b;
    b.Clicca(1, "chiudi");
    b.Clicca(2, "dentro");
    b.Clicca(3, "chiudi");
    b.Fine(4);
    EXPECT_TRUE(b.Corri());
    EXPECT_EQ(b.finestra.diario, (Diario{"activate", "loop", "unload", "pass", "end", "gone",
                                         "activate", "loop", "unload", "pass", "end", "gone"}));
}

TEST(Attivazione, AFaultInItIsShownAndTheWindowStaysOpen) {
    BancoCiclo b;
    b.finestra.allAttivazione = [] { throw Guasto(71, "Disk not ready"); };
    b.Clicca(1, "altro");
    b.Clicca(2, "chiudi");
    b.Fine(3);
    EXPECT_TRUE(b.Corri());
    EXPECT_EQ(b.riquadri.messaggi, (Diario{"71\r\nDisk not ready"}));
    EXPECT_EQ(b.finestra.diario,
              (Diario{"activate", "loop", "click", "pass", "unload", "pass", "end", "gone"}));
}

}  // namespace corvana::prova
