// Over many draws each answer that may be asked comes as often as it should, and no other ever.
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "tests/eartrainer/into_rig.h"

namespace corvana::prova {

namespace {

constexpr int estrazioni = 100000;

/// `pesi` by answer; what isn't among them must never come.
void Controlla(const std::map<std::string, int>& conti, const std::map<std::string, int>& pesi) {
    int tutti = 0;
    for (const auto& [risposta, peso] : pesi)
        tutti += peso;
    for (const auto& [risposta, quante] : conti)
        EXPECT_TRUE(pesi.contains(risposta)) << risposta;
    for (const auto& [risposta, peso] : pesi) {
        const double p = static_cast<double>(peso) / tutti;
        const double scarto = std::sqrt(estrazioni * p * (1 - p));
        const auto conto = conti.find(risposta);
        ASSERT_NE(conto, conti.end()) << risposta;
        EXPECT_NEAR(conto->second, estrazioni * p, 5 * scarto + 1) << risposta;
    }
}

struct BancoEstrazioni : BancoInto {
    explicit BancoEstrazioni(PaginaInto pagina) : BancoInto(chance, {pagina}) {}
    CasualeFisso chance;
    std::map<std::string, int> conti;
    /// Does it so often, at the window's rest.
    void Conta(const std::function<std::string()>& estrae) {
        Quando(8, [this, estrae] {
            for (int i = 0; i < estrazioni; ++i)
                ++conti[estrae()];
        });
        Vai(1e6);
    }
    /// What comes when the right answer is given so often.
    void ContaRisposte(const std::function<void()>& risponde,
                       const std::function<std::string()>& chiesto) {
        Conta([&] {
            risponde();
            uscita.messaggi.clear();
            if (finestra.telaio.punti.txtResatte.Caption() == "32767")
                finestra.telaio.punti.Azzera();
            return chiesto();
        });
    }
};

}  // namespace

TEST(Estrazioni, OfPitchEachKeyOfTheRangeAndOfTheWhiteOnesAloneEachOfThose) {
    BancoEstrazioni tutti(PaginaInto::Intonazione), bianchi(PaginaInto::Intonazione);
    tutti.PonStato("30;34;69;0;True;0");
    bianchi.PonStato("30;34;69;0;False;0");
    for (BancoEstrazioni* b : {&tutti, &bianchi})
        b->Conta([b] { return std::to_string(b->finestra.intonazione.ScegliIntoNota()); });
    Controlla(tutti.conti, {{"30", 1}, {"31", 1}, {"32", 1}, {"33", 1}, {"34", 1}});
    Controlla(bianchi.conti, {{"31", 1}, {"33", 1}});
}

TEST(Estrazioni, OfIntervalsEachSizeThatIsAdmitted) {
    BancoEstrazioni b(PaginaInto::Intervalli);
    for (const char* nome : {"lblModo", "lblModo", "lblModo", "CmdIntStart"})
        b.Clicca(0.5, nome);
    PaginaIntervalli& pagina = b.finestra.intervalli;
    b.ContaRisposte([&] { pagina.LblSemi_Click(pagina.IntSemitoni); },
                    [&] { return std::to_string(pagina.IntSemitoni); });
    Controlla(b.conti, {{"3", 1}, {"4", 1}, {"7", 1}});
}

TEST(Estrazioni, OfIntervalsOnAVariableRootEachRootOfItsRange) {
    BancoEstrazioni b(PaginaInto::Intervalli);
    b.Clicca(0.1, "lblFv");
    b.Fa(0.1, Fatto::Change, "RifInf", 58);
    for (const char* nome : {"lblModo", "lblModo", "lblModo", "CmdIntStart"})
        b.Clicca(0.5, nome);
    PaginaIntervalli& pagina = b.finestra.intervalli;
    b.ContaRisposte([&] { pagina.LblSemi_Click(pagina.IntSemitoni); },
                    [&] { return std::to_string(pagina.IntRadice); });
    Controlla(b.conti, {{"-2", 1}, {"-1", 1}, {"0", 1}});
}

TEST(Estrazioni, OfChordsEachTypeThatIsAdmittedOnEachRoot) {
    BancoEstrazioni b(PaginaInto::Accordi);
    b.Tasto(0.2, 10);
    b.Tasto(0.4, 11);
    b.Clicca(0.5, "EsclTa2");
    b.Clicca(0.6, "ComdRacStart");
    b.ContaRisposte(
        [&] { b.finestra.accordi.TipoAcc_Click(b.into.AccTipo); },
        [&] { return std::to_string(b.into.AccTipo) + " " + std::to_string(b.into.AccNota[0]); });
    Controlla(b.conti,
              {{"0 46", 1}, {"0 47", 1}, {"1 46", 1}, {"1 47", 1}, {"3 46", 1}, {"3 47", 1}});
}

TEST(Estrazioni, OfKeysEachSpellingSoThatABlackKeyWithTwoComesTwiceAsOften) {
    BancoEstrazioni b(PaginaInto::Tasti);
    b.Clicca(0.2, "lblSceltaTasti");
    b.Clicca(0.4, "cmdRicTasto");
    const auto nota = [&] { return b.finestra.telaio.NotaRif; };
    b.ContaRisposte([&] { b.finestra.tasti.Tasto(static_cast<std::int16_t>(nota() - 36)); },
                    [&] { return std::to_string(nota()); });
    Controlla(b.conti, {{"59", 1},
                        {"60", 1},
                        {"61", 2},
                        {"62", 1},
                        {"63", 2},
                        {"64", 2},
                        {"65", 2},
                        {"66", 2},
                        {"67", 1},
                        {"68", 2},
                        {"69", 1},
                        {"70", 2},
                        {"71", 1},
                        {"72", 1}});
}

TEST(Estrazioni, OfTonalitiesEachKeyThatIsAdmitted) {
    BancoEstrazioni b(PaginaInto::Tonalita);
    b.Clicca(0.5, "cmdT");
    PaginaTonalita& pagina = b.finestra.tonalita;
    b.ContaRisposte([&] { pagina.T_Click(pagina.ToIndice); },
                    [&] { return std::to_string(pagina.ToIndice); });
    Controlla(b.conti,
              {{"0", 1}, {"2", 1}, {"5", 1}, {"7", 1}, {"12", 1}, {"14", 1}, {"16", 1}, {"19", 1}});
}

}  // namespace corvana::prova
