// The score is at every moment that of a plain model of it. The seed is 1; for other seeds shuffle
// and repeat.
#include "tests/eartrainer/score_model.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/eartrainer/into_rig.h"
#include "tests/support/seed.h"

namespace corvana::prova {

namespace {

using P = PaginaInto;

/// What is clicked on each page beside the keys and the right answer; the Start button is first.
const std::array<std::vector<std::string>, 5> cose = {
    {{"IntoStart", "lblRipInto", "lblMod", "lblSolotb", "lblIntoSh", "cmdReimposta"},
     {"CmdIntStart", "lblRipInt", "lblModo", "lblFv", "lblIntSh", "Il0", "Il5", "Il7", "LblSemi4"},
     {"ComdRacStart", "lblRipta", "lblVt", "cmdRes", "EsclTa0", "EsclTa1", "EsclTa2", "EsclTa3",
      "TipoAcc1"},
     {"cmdRicTasto", "lblSceltaTasti"},
     {"cmdT", "lblRipeti", "lblTsh", "T5", "T14"}}};
const std::vector<std::string> menu = {"mnuNotA",  "mnuRint", "mnuRicTa",    "mnuRicTasto",
                                       "mnuRicTo", "mnuSs",   "mnuNotAnglo", "mnuNotLat"};

class Contabile {
public:
    Contabile(std::uint32_t seme, P pagina, int clic)
        : generatore_(seme), rimasti_(clic), banco_(chance_, {pagina}), modello_(pagina) {}

    void Vivi() {
        banco_.Quando(passo, [this] { Passo(); });
        banco_.Vai(1e9);
    }

    int giuste = 0;
    std::string guasto;

private:
    static constexpr double passo = 10;  ///< the longest figure is over by then

    int Tra(int basso, int alto) { return std::uniform_int_distribution(basso, alto)(generatore_); }
    const std::string& Una(const std::vector<std::string>& fra) {
        return fra[static_cast<std::size_t>(Tra(0, static_cast<int>(fra.size()) - 1))];
    }

    std::string Scegli() {
        const int dado = Tra(0, 99);
        const auto& qui = cose.at(static_cast<std::size_t>(modello_.Davanti()));
        if (dado < 45) return modello_.Giusto().value_or(qui.front());
        if (dado < 60) return "lb" + std::to_string(Tra(0, 59));
        if (dado < 68) return qui.front();
        // Nobody could know the type of a chord that doesn't sound.
        if (dado < 92) return modello_.Muto() ? qui.front() : Una(qui);
        return Una(menu);
    }

    bool Usabile(const Controllo* controllo) const {
        for (; controllo; controllo = controllo->Padre())
            if (!controllo->Visible() || !controllo->Enabled()) return false;
        return true;
    }

    void Passo() {
        std::vector<Colpo> colpi;
        for (const auto& [nota, velocita] : banco_.uscita.ConStato(0x90))
            if (velocita) colpi.emplace_back(nota, velocita);
        modello_.Dopo(colpi, banco_.Passo());
        banco_.uscita.messaggi.clear();
        const char segno = banco_.Visibile("lblOk") ? '+' : banco_.Visibile("lblKo") ? '-' : ' ';
        const std::string punti = banco_.Punti() + " " + segno;
        if (punti != modello_.Punti())
            guasto = "after " + fatto_ + ": " + punti + " and not " + modello_.Punti();
        if (--rimasti_ < 0 || !guasto.empty()) throw FineCopione{};
        Clicca(Scegli());
        banco_.Quando(banco_.orologio.Adesso() + passo, [this] { Passo(); });
    }

    void Clicca(const std::string& controllo) {
        Evento clic;
        clic.fatto = controllo == "Il0" ? Fatto::DblClick : Fatto::Click;
        giuste += controllo == modello_.Giusto();
        if (Usabile(banco_.finestra.Trova(controllo))) modello_.Clic(controllo);
        banco_.coda.Aggiungi(banco_.Fatta(clic, controllo));
        fatto_ = controllo + " as number " + std::to_string(rimasti_);
    }

    std::mt19937 generatore_;
    CasualeFisso chance_;
    int rimasti_;
    BancoInto banco_;
    ModelloPunti modello_;
    std::string fatto_;
};

}  // namespace

TEST(ModelloPunti, TheScoreIsAlwaysTheModels) {
    for (const P pagina : pagineInto)
        for (std::uint32_t giorno = 0; giorno < 10; ++giorno) {
            Contabile contabile(Seme() * 100 + giorno, pagina, 2000);
            contabile.Vivi();
            EXPECT_EQ(contabile.guasto, "") << "seed " << Seme() << ", day " << giorno;
            EXPECT_GT(contabile.giuste, 100);
        }
}

}  // namespace corvana::prova
