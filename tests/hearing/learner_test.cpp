// Of each drill a learner who only hears reads the names on the screen, clicks, and is right each
// time: what sounds is what is asked.
#include "tests/hearing/learner.h"

#include <cctype>
#include <cmath>
#include <map>
#include <sstream>

namespace corvana::prova {

namespace {

std::string Tasto(int nota) {
    return "lb" + std::to_string(nota - 36);
}

/// The answer whose name on the screen is that text.
std::string ConNome(const Aula& aula, const std::string& serie, int quanti,
                    const std::string& nome) {
    for (int i = 0; i < quanti; ++i)
        if (aula.Legge(serie + std::to_string(i)) == nome) return serie + std::to_string(i);
    ADD_FAILURE() << "no answer " << nome;
    return serie + "0";
}

std::string Semitoni(const Aula& aula, int quanti) {
    return ConNome(aula, "LblSemi", 14, std::to_string(quanti));
}

/// Of intervals all sizes are admitted, on roots of a range, in the mode that so many clicks
/// choose.
std::vector<Mossa> TutteLeDimensioni(std::size_t clicSulModo, int bassa, int alta) {
    std::vector<Mossa> mosse = {{Fatto::DblClick, "Il0"},
                                {Fatto::Click, "lblFv"},
                                {Fatto::Change, "RifInf", bassa},
                                {Fatto::Change, "RifSup", alta}};
    mosse.insert(mosse.end(), clicSulModo, {Fatto::Click, "lblModo"});
    return mosse;
}

/// The pitch class that a name means: "REb" and "Re b" are no others than "Reb".
int ClasseDi(std::string nome) {
    static const std::map<std::string, int> bianchi = {{"do", 0},  {"re", 2}, {"mi", 4}, {"fa", 5},
                                                       {"sol", 7}, {"la", 9}, {"si", 11}};
    int alterazione = 0;
    if (nome.back() == '#') alterazione = 1;
    if (nome.back() == 'b') alterazione = 11;
    if (alterazione) nome.pop_back();
    for (char& c : nome)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return (bianchi.at(nome) + alterazione) % 12;
}

}  // namespace

TEST_P(Allievo, FindsTheNoteThatSoundsAfterTheReference) {
    Impegnati({PaginaInto::Intonazione,
               {{Fatto::Click, "lblSolotb"}},
               "IntoStart",
               2.5,
               [&](Aula&, Udito udito) {
                   EXPECT_EQ(Nota(udito, 0), 69) << "the reference";
                   return Tasto(Nota(udito, 1.3));
               }});
}

TEST_P(Allievo, FindsTheNoteThatSoundsWithoutAReference) {
    Impegnati({PaginaInto::Intonazione,
               {{Fatto::Click, "lblSolotb"}, {Fatto::Click, "lblMod"}},
               "IntoStart",
               1,
               [&](Aula&, Udito udito) { return Tasto(Nota(udito, 0)); }});
}

TEST_P(Allievo, KnowsTheSizeOfIntervalsWhoseNotesFollowEachOther) {
    // From " / " at the entry on: then " / : ", then " \\ ".
    for (const std::size_t clic : {0U, 1U, 2U})
        Impegnati({PaginaInto::Intervalli, TutteLeDimensioni(clic, radicePiuBassa, radicePiuAlta),
                   "CmdIntStart", 3.2,
                   [&](Aula& aula, Udito udito) {
                       const int prima = Nota(udito, 0), poi = Nota(udito, 0.8);
                       EXPECT_TRUE(clic == 2 ? poi <= prima : poi >= prima);
                       if (clic == 1) {
                           EXPECT_EQ(Coppia(udito, 2.2), std::pair(prima, poi));
                       }
                       return Semitoni(aula, std::abs(poi - prima));
                   },
                   20});
}

TEST_P(Allievo, KnowsTheSizeOfIntervalsWhoseNotesSoundTogether) {
    Impegnati({PaginaInto::Intervalli, TutteLeDimensioni(3, radicePiuBassa, radicePiuAlta),
               "CmdIntStart", 1.2, [&](Aula& aula, Udito udito) {
                   const auto [bassa, alta] = Coppia(udito, 0);
                   return Semitoni(aula, alta - bassa);
               }});
}

TEST_P(Allievo, KnowsTheTypeOfChordsOnAnyRoot) {
    const std::vector<std::string> nomi = {"Min", "Mag", "Dim", "Ecc"};
    const std::vector<std::pair<int, int>> sopra = {{3, 7}, {4, 7}, {3, 6}, {4, 8}};
    std::vector<std::vector<int>> accordi;
    for (int radice = 48; radice <= 72; ++radice)
        for (const auto& [terza, quinta] : sopra)
            accordi.push_back({radice, radice + terza, radice + quinta});
    Impegnati({PaginaInto::Accordi,
               {{Fatto::Click, Tasto(48)}, {Fatto::Click, Tasto(72)}},
               "ComdRacStart",
               1.5,
               [&](Aula& aula, Udito udito) {
                   // The first one sounds at once, the others after a silence.
                   const auto quale = Quale(udito, 0.3, accordi, Volume::Qualunque);
                   return ConNome(aula, "TipoAcc", 4, nomi[quale % nomi.size()]);
               }});
}

TEST_P(Allievo, FindsTheKeyThatIsNamedAndItIsTheOneThatSounds) {
    int ottava = 0;
    Impegnati({PaginaInto::Tasti,
               {{Fatto::Click, "lblSceltaTasti"}},
               "cmdRicTasto",
               1,
               [&](Aula& aula, Udito udito) {
                   const int nota = Nota(udito, 0);
                   std::istringstream passo(aula.Legge("lblStep"));
                   std::string nome;
                   for (std::string parola; passo >> parola;)
                       if (std::isupper(static_cast<unsigned char>(parola.front()))) nome = parola;
                   EXPECT_EQ(ClasseDi(nome), nota % 12) << aula.Legge("lblStep");
                   return Tasto(36 + nota % 12 + 12 * (ottava++ % 5));
               },
               100});
}

TEST_P(Allievo, KnowsTheTonalityThatAFigureStates) {
    std::vector<Mossa> altre;
    for (const int i : {1, 3, 4, 6, 8, 9, 10, 11, 13, 15, 17, 18, 20, 21, 22, 23})
        altre.push_back({Fatto::Click, "lblT(" + std::to_string(i) + ")"});
    Impegnati({PaginaInto::Tonalita, altre, "cmdT", 6, [&](Aula& aula, Udito udito) {
                   EXPECT_EQ(Nota(udito, 0), 69) << "the tuning A";
                   const int tonica = Nota(udito, 1.4);
                   const bool maggiore = Nota(udito, 4.1) == tonica + 4;
                   for (int i = maggiore ? 0 : 12; i < (maggiore ? 12 : 24); ++i) {
                       const std::string cella = "T" + std::to_string(i);
                       std::istringstream nomi(aula.Legge(cella));
                       std::string nome;
                       nomi >> nome;
                       if (ClasseDi(nome) == tonica % 12) return cella;
                   }
                   ADD_FAILURE() << "no cell for " << tonica;
                   return std::string("T0");
               }});
}

INSTANTIATE_TEST_SUITE_P(Strumenti, Allievo, testing::Values(0, 16));

}  // namespace corvana::prova
