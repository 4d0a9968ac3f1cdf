#include "tests/composer/scribe.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <stdexcept>

#include "core/text.h"
#include "tests/composer/plain_numbers.h"

namespace corvana::prova {

namespace {

constexpr std::array valoriScritti = {4.0, 2.0, 1.0, 0.5, 0.25, 0.125, 0.0625};
constexpr int nessuna = -1;

int FiguraDi(double valore) {
    for (std::size_t i = 0; i < valoriScritti.size(); ++i)
        if (std::fabs(valoriScritti.at(i) - valore) < 1e-9) return static_cast<int>(i);
    return nessuna;
}

struct Scrivano {
    std::vector<std::string> note, durate, attributi;
    std::vector<GestoMouse> gesti = {};
    int figura = 2;
    int diTerzina = 0;  ///< notes entered of the triplet that is open
    int punti = 0;      ///< dotted notes so far

    bool Pausa(std::size_t i) const { return note[i] == "00"; }
    void Clicca(const std::string& controllo) { gesti.push_back({controllo, false}); }
    void Figura(int quale) {
        if (quale != figura) Clicca("cmdSimbNote" + std::to_string(quale));
        figura = quale;
    }
    void Attributo(int quale) { Clicca("cmdAttrNota" + std::to_string(quale)); }

    void Tasto(std::size_t i, bool doppio) {
        gesti.push_back({"lb" + std::to_string(std::atoi(note[i].c_str()) - 36), doppio});
    }
    void Metti(std::size_t i, bool colBottone) {
        if (Pausa(i)) return Clicca("cmdInsPausa");
        Tasto(i, !colBottone);
        if (colBottone) Clicca("cmdInsNota");
    }
    /// By double clicks: a button's press counts for two.
    void DiTerzina(std::size_t i, int quale) {
        Figura(quale);
        if (diTerzina == 0) Attributo(3);
        const bool offerto = diTerzina == 0;  // of the first note the accent is on by itself
        if (!Pausa(i) && offerto != (attributi[i] == "a")) Clicca("lblAt");
        Metti(i, false);
        diTerzina = (diTerzina + 1) % 3;
    }
    void ConPunto(std::size_t i, int quale) {
        if (++punti % 2 == 1) {
            Figura(quale);
            Attributo(0);
            return Metti(i, i % 2 == 0);
        }
        Figura(quale);
        Metti(i, i % 2 == 0);
        Figura(quale + 1);
        Attributo(2);
        Clicca(Pausa(i) ? "cmdInsPausa" : "cmdInsNota");
    }
    void PerTre(std::size_t i, int quale, int attributo) {
        Figura(quale + 1);
        Attributo(attributo);
        Clicca("Label4");
        Clicca("Label4");
        Metti(i, i % 2 == 0);
        gesti.push_back({"Label4", true});
    }
    void Semplice(std::size_t i, int quale, int attributo) {
        Figura(quale);
        if (attributo != nessuna) Attributo(attributo);
        Metti(i, i % 2 == 0);
    }
    int AttributoDi(std::size_t i) const {
        if (attributi[i] == "s") return 1;
        if (attributi[i] == "t") return 4;
        if (attributi[i] == "a") return 5;
        return nessuna;
    }
    void Scrivi(std::size_t i) {
        const double durata = LettoColPunto(durate[i]);
        const int attributo = AttributoDi(i);
        if (const int f = FiguraDi(durata * 1.5); f != nessuna) return DiTerzina(i, f);
        if (const int f = FiguraDi(durata); f != nessuna) return Semplice(i, f, attributo);
        const int f = FiguraDi(durata / 1.5);
        if (f == nessuna) throw std::invalid_argument("no way to enter " + durate[i]);
        attributo == nessuna ? ConPunto(i, f) : PerTre(i, f, attributo);
    }
};

}  // namespace

std::vector<GestoMouse> GestiDi(const TestiVoce& voce) {
    Scrivano scrivano{Dividi(voce[0], ';'), Dividi(voce[1], ';'), Dividi(voce[2], ';')};
    for (std::size_t i = 0; i + 1 < scrivano.note.size(); ++i)
        scrivano.Scrivi(i);
    scrivano.Figura(2);
    return std::move(scrivano.gesti);
}

}  // namespace corvana::prova
