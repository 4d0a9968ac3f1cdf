// A careless user of the whole program: every window that opens is clicked through, typed into and
// closed, for virtual days. Seed 1; for others shuffle and repeat, as with the main window's.
#include <gtest/gtest.h>

#include <random>

#include "tests/program/program_rig.h"
#include "tests/support/seed.h"

namespace corvana::prova {

namespace {

class Vagabondo {
public:
    Vagabondo(std::uint32_t seme, int eventi) : generatore_(seme), rimasti_(eventi) {}

    void Vivi() {
        while (rimasti_ > 0 && guasto.empty())
            Avvia();
    }

    std::string guasto;                ///< the first thing that went wrong
    std::map<std::string, int> viste;  ///< events by the window that was in front
    int chiusure = 0;
    int pulsi = 0;
    double secondi = 0;

private:
    int Tra(int basso, int alto) { return std::uniform_int_distribution(basso, alto)(generatore_); }
    bool Capita(int perMille) { return Tra(0, 999) < perMille; }

    void Avvia() {
        banco_ = std::make_unique<BancoProgramma>();
        banco_->uscita.nomi = {"Porta"};
        if (Capita(100)) banco_->uscita.esitoOpen = 4;
        banco_->Quando(0, [this] { Passo(); });
        const bool svolta = banco_->Esegui([this] { banco_->programma.Esegui(false); });
        if (!svolta) ControllaChiusa();
        pulsi += static_cast<int>(banco_->Pulsi().size());
        secondi += banco_->orologio.Adesso();
    }

    void Passo() {
        Controlla();
        if (rimasti_ <= 0 || !guasto.empty()) throw FineCopione{};
        for (int i = Capita(100) ? Tra(2, 6) : 1; i > 0; --i)
            Agisci();
        const double pausa = Capita(900) ? Tra(0, 1500) / 1000.0 : Tra(0, 3600);
        banco_->Quando(banco_->orologio.Adesso() + pausa, [this] { Passo(); });
    }

    void Agisci() {
        --rimasti_;
        const Form* davanti = banco_->finestre.Davanti();
        if (!davanti) return;
        ++viste[davanti->Name];
        const bool principale = davanti == &banco_->finestra;
        Evento e;
        e.finestra = davanti->Identita();
        e.controllo = Tra(0, static_cast<int>(davanti->Controlli().size()) - 1);
        e.valore = Tra(-20, 140);
        e.x = Tra(-1000, 10000);
        e.y = Tra(-1000, 5000);
        e.codice = Capita(500) ? 27 : Tra(1, 255);
        e.testo =
            std::string(static_cast<std::size_t>(Tra(0, 20)), static_cast<char>(Tra('a', 'e')));
        if (Capita(300)) e.fatto = static_cast<Fatto>(Tra(0, static_cast<int>(Fatto::FuocoPerso)));
        if (e.fatto == Fatto::Chiudi && principale && !Capita(20)) e.fatto = Fatto::Click;
        const bool dellaFinestra =
            e.fatto == Fatto::KeyDown || e.fatto == Fatto::KeyUp || e.fatto == Fatto::Chiudi;
        if (dellaFinestra) e.controllo = 0;
        banco_->coda.Aggiungi(std::move(e));
    }

    void Esigi(bool vero, const std::string& cosa) {
        if (!vero && guasto.empty()) guasto = cosa + ", " + std::to_string(rimasti_) + " to go";
    }

    void Controlla() {
        BancoProgramma& b = *banco_;
        for (const std::string& testo : b.dialoghi.messaggi)
            Esigi(testo.starts_with("Operation:"), "a box: " + testo);
        b.dialoghi.messaggi.clear();
        const StatoMetronomo& m = b.stato;
        Esigi(!m.MetroSequenza.empty() && m.MetroSequenza.size() <= 20, "no pattern");
        Esigi(m.MetroBattito >= 0.15 - 1e-9 && m.MetroBattito <= 3, "a beat out of its bounds");
        Esigi(b.finestra.Start.Caption() == (b.finestra.InCorso ? "Stop" : "Start"), "the caption");
        if (m.MetroAttivo)
            Esigi(!b.metronomo.cmdSetup.Enabled() && !b.metronomo.lblCloseMetro.Enabled(),
                  "the set-up is on while it ticks");
    }

    void ControllaChiusa() {
        ++chiusure;
        Controlla();
        Esigi(!banco_->stato.MetroAttivo, "closed while the metronome ticks");
        Esigi(!banco_->finestra.InCorso, "closed within a run");
        Esigi(!banco_->uscita.aperto, "the device stays open");
    }

    std::mt19937 generatore_;
    int rimasti_;
    std::unique_ptr<BancoProgramma> banco_;
};

}  // namespace

TEST(Vagabondo, OpensAndClosesEveryWindowAndNothingFails) {
    Vagabondo utente(Seme(), 100000);
    utente.Vivi();
    EXPECT_EQ(utente.guasto, "") << "seed " << Seme();
    for (const char* nome : {"CorvanaMainF", "frmConfMetro", "frmStrum", "frmMidiTest", "frmAbout"})
        EXPECT_GT(utente.viste[nome], 200) << nome;
    EXPECT_GT(utente.chiusure, 5);
    EXPECT_GT(utente.pulsi, 1000);
    EXPECT_GT(utente.secondi, 24 * 3600);
}

}  // namespace corvana::prova
