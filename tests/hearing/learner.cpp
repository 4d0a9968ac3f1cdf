#include "tests/hearing/learner.h"

#include <cmath>
#include <map>

#include "tests/outputs/hearing.h"
#include "tests/support/seed.h"

namespace corvana::prova {

namespace {

constexpr int pianoforte = 0;

/// The keys of the computer's keyboard that are a piano, from Z on.
std::vector<int> TastiDelPiano() {
    const std::string lettere = "ZSXDCVGBHNJMQ2W3ER5T6Y7UI9O0P";
    std::vector<int> codici(lettere.begin(), lettere.end());
    codici.insert(codici.end(), {186, 221, 187, 8});
    return codici;
}

const char* Voce(int programma) {
    return programma == pianoforte ? "mnuPiano" : "mnuOrgano";
}

/// Plays each note once on the computer's keyboard and listens.
OrecchioEsperto Impara(int programma) {
    constexpr double inizio = 2, tenuta = 0.9, passo = 1.1;
    constexpr int notaDiZ = 48;
    Aula aula(PaginaInto::Tasti);
    aula.Clicca(1, Voce(programma));
    double t = inizio;
    for (const int codice : TastiDelPiano()) {
        aula.Premi(t, codice);
        aula.Lascia(t + tenuta, codice);
        t += passo;
    }
    aula.Vivi(t);
    const auto tutto = aula.Senti();
    OrecchioEsperto orecchio;
    int nota = notaDiZ;
    for (double da = inizio; da < t - passo / 2; da += passo) {
        const auto suono = Parte(tutto, da + 0.3, 0.4);
        const double altezza = NotaMidi(Altezza(suono));
        // An organ may sound some octaves at once.
        const double scarto =
            programma == pianoforte ? altezza - nota : std::remainder(altezza - nota, 12.0);
        EXPECT_NEAR(scarto, 0, 0.3) << "the note " << nota;
        orecchio.Impara(nota++, suono);
    }
    return orecchio;
}

/// What he has learned with that instrument.
const OrecchioEsperto& Orecchio(int programma) {
    static std::map<int, OrecchioEsperto> imparati;
    if (!imparati.contains(programma)) imparati.emplace(programma, Impara(programma));
    return imparati.at(programma);
}

}  // namespace

int Allievo::Nota(Udito udito, double quando) const {
    return Orecchio(GetParam()).Nota(Parte(udito, quando + 0.25, 0.35));
}

std::size_t Allievo::Quale(Udito udito, double quando,
                           const std::vector<std::vector<int>>& possibili, Volume volume) const {
    return Orecchio(GetParam()).Riconosci(Parte(udito, quando + 0.3, 0.4), possibili, volume);
}

std::pair<int, int> Allievo::Coppia(Udito udito, double quando) const {
    std::vector<std::vector<int>> coppie;
    for (int bassa = radicePiuBassa; bassa <= radicePiuAlta; ++bassa)
        coppie.push_back({bassa});
    for (int bassa = radicePiuBassa; bassa <= radicePiuAlta; ++bassa)
        for (int alta = bassa + 1; alta <= bassa + 13; ++alta)
            coppie.push_back({bassa, alta});
    const std::vector<int>& udita = coppie[Quale(udito, quando, coppie, Volume::Noto)];
    return {udita.front(), udita.back()};
}

void Allievo::Impegnati(const Lezione& lezione) const {
    Aula aula(lezione.pagina, static_cast<int>(Seme()) + GetParam());
    aula.Clicca(1, Voce(GetParam()));
    double t = 2;
    for (const Mossa& mossa : lezione.preparativi)
        aula.Fa(t++, mossa);
    aula.Clicca(t, lezione.start);
    aula.Quando(t, [&] { aula.Senti(); });
    for (int i = 0; i < lezione.domande; ++i) {
        t += lezione.ascolto;
        aula.Quando(t, [&, t] {
            const auto udito = aula.Senti();
            aula.Clicca(t, lezione.risposta(aula, udito));
        });
    }
    aula.Vivi(t + lezione.ascolto);
    EXPECT_EQ(aula.Legge("txtResatte"), std::to_string(lezione.domande));
    EXPECT_EQ(aula.Legge("txtRerrate"), "0");
}

}  // namespace corvana::prova
