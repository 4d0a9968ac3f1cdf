#include "tests/composer/voice_model.h"

#include <rapidcheck.h>

#include <algorithm>
#include <map>
#include <numeric>

#include "composer/pulses.h"

namespace corvana::prova {

namespace {

constexpr std::array<DurataModello, 22> durateDelModello = {{{"4", 128},
                                                             {"2", 64},
                                                             {"1", 32},
                                                             {"0.5", 16},
                                                             {"0.25", 8},
                                                             {"0.125", 4},
                                                             {"0.0625", 2},
                                                             {"0.03125", 1},
                                                             {"3", 96},
                                                             {"1.5", 48},
                                                             {"0,75", 24},
                                                             {"0,375", 12},
                                                             {"2.25", 72},
                                                             {"7", 224},
                                                             {"5.5", 176},
                                                             {"2.66666666666667", 85, true},
                                                             {"1.33333333333333", 43, true},
                                                             {"0.666666666666667", 21, true},
                                                             {"0.333333333333333", 11, true},
                                                             {"0.166666666666667", 5, true},
                                                             {"0.0833333333333333", 3, true},
                                                             {"0.0416666666666667", 1, true}}};

/// Sums of three tuplet notes, and what the third of them gets.
const std::map<int, int> correzioni = {{255, 1}, {129, -1}, {63, 1}, {33, -1},
                                       {15, 1},  {9, -1},   {3, 1}};

/// Lengths of the notes from `da` on, the tally beginning there.
std::vector<int> Lunghezze(const VoceModello& voce, std::size_t da) {
    std::vector<int> lunghezze;
    std::vector<int> gruppo;
    for (std::size_t i = da; i < voce.size(); ++i) {
        int tick = voce[i].durata.tick;
        if (voce[i].durata.tuplet) gruppo.push_back(tick);
        if (gruppo.size() == 3) {
            const auto trovata = correzioni.find(std::accumulate(gruppo.begin(), gruppo.end(), 0));
            if (trovata != correzioni.end()) tick += trovata->second;
            gruppo.clear();
        }
        lunghezze.push_back(tick);
    }
    return lunghezze;
}

int Somma(const VoceModello& voce, int note) {
    const std::vector<int> lunghezze = Lunghezze(voce, 0);
    return std::accumulate(lunghezze.begin(), lunghezze.begin() + note, 0);
}

int Gate(const NotaModello& nota, int lunghezza) {
    switch (nota.attributo) {
        case 's': return lunghezza / 5;
        case 't': return lunghezza / 2;
        case 'p': return -1;
        default: return lunghezza;
    }
}

int Velocita(const NotaModello& nota, int volume) {
    if (volume == 98) return 2;
    const std::map<char, int> forze = {{'n', 98}, {'a', 127}, {'s', 120}, {'t', 100}};
    return forze.at(nota.attributo) - volume;
}

/// Where a voice is entered: the note, and how many of its ticks have gone by.
struct Entrata {
    std::size_t nota = 0;
    int trascorsi = 0;
};

Entrata EntrataDopo(const VoceModello& voce, int tick) {
    Entrata entrata{0, tick};
    // A mixed group may leave no tick for its third note, which takes one to go by all the same.
    for (const int lunghezza : Lunghezze(voce, 0)) {
        if (entrata.trascorsi < std::max(lunghezza, 1)) break;
        entrata.trascorsi -= std::max(lunghezza, 1);
        ++entrata.nota;
    }
    return entrata;
}

Mandati MandatiVoce(const VoceModello& voce, int canale, int volume, const Entrata& entrata) {
    Mandati mandati;
    const std::vector<int> lunghezze = Lunghezze(voce, entrata.nota);
    int passati = -entrata.trascorsi;  // ticks of the play before the note's own first one
    for (std::size_t i = 0; i < lunghezze.size(); ++i) {
        const NotaModello& nota = voce[entrata.nota + i];
        const int spento = passati + Gate(nota, lunghezze[i]);
        const int acceso = std::max(passati + 1, 1);
        if (acceso < spento) {
            mandati.push_back({acceso, canale, nota.nota, Velocita(nota, volume)});
            mandati.push_back({spento, canale, nota.nota, 0});
        }
        // One that has gone by already, being longer when it was counted as a group's third, takes
        // the tick in which that is seen.
        passati = std::max(passati + lunghezze[i], acceso);
    }
    return mandati;
}

Mandati MandatiPulsi(const MelodiaModello& m, int inizio) {
    const std::string_view lettere = LetterePulsi(std::to_string(m.pulsazioni));
    auto pulso = static_cast<std::size_t>(m.primoPulso - 1);
    int fine = m.tickPulso;
    if (m.prima == 0 && !m.Intera()) pulso = 0;
    // The range's first tick belongs to the pulse that the next tick belongs to.
    if (m.prima > 0)
        for (; inizio + 1 >= fine; fine += m.tickPulso)
            pulso = (pulso + 1) % lettere.size();
    Mandati mandati;
    int acceso = 1;
    for (const int durata = TickAttesi(m); acceso <= durata; fine += m.tickPulso) {
        const int nota = lettere[pulso] == 'a' ? 81 : lettere[pulso] == 'b' ? 36 : 46;
        const int spento = fine - inizio;
        mandati.push_back({acceso, 10, nota, 120});
        mandati.push_back({std::min(spento, durata + 1), 10, nota, 0});
        acceso = spento + 1;
        pulso = (pulso + 1) % lettere.size();
    }
    return mandati;
}

int PrimaDelTratto(const MelodiaModello& m) {
    return m.Intera() ? 0 : Somma(m.voci[soprano], m.prima);
}

}  // namespace

bool MelodiaModello::Intera() const {
    return prima == 0 && ultima + 1 >= static_cast<int>(voci[soprano].size());
}

int Tra(int minimo, int massimo) {
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(minimo, massimo + 1));
}

VoceModello EstraiVoce(bool anchePrivaDiNote) {
    using Tratto = std::tuple<std::size_t, int, int, char>;
    // The whole ranges also of a melody that is still small.
    const auto tratto = rc::gen::resize(
        rc::kNominalSize, rc::gen::tuple(rc::gen::inRange<std::size_t>(0, durateDelModello.size()),
                                         rc::gen::inRange(36, 96), rc::gen::inRange(0, 4),
                                         rc::gen::element('n', 'n', 'a', 's', 't', 'p')));
    auto tratti = *rc::gen::resize(12, rc::gen::container<std::vector<Tratto>>(tratto));
    if (tratti.empty() && !anchePrivaDiNote) tratti.emplace_back(2, 60, 0, 'n');
    VoceModello voce;
    for (const auto& [durata, nota, gruppo, attributo] : tratti) {
        // Most tuplet notes come as the three of a whole group.
        const int note = durateDelModello.at(durata).tuplet && gruppo > 0 ? 3 : 1;
        for (int i = 0; i < note; ++i)
            voce.push_back({durateDelModello.at(durata), attributo == 'p' ? 0 : nota, attributo});
    }
    return voce;
}

MelodiaModello EstraiMelodia() {
    MelodiaModello m;
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        m.voci[voce] = EstraiVoce(voce != soprano);
        m.volumi[voce] = Tra(0, 9) == 0 ? 98 : Tra(0, 97);
    }
    m.conMetronomo = *rc::gen::arbitrary<bool>();
    m.pulsazioni = Tra(1, 9);
    m.primoPulso = Tra(1, std::min(m.pulsazioni, 8));
    const auto raddoppi = static_cast<std::size_t>(Tra(0, 4));
    m.durataPulsi = std::array{"16", "8", "4", "2", "1"}.at(raddoppi);
    m.tickPulso = 8 << raddoppi;
    const int note = static_cast<int>(m.voci[soprano].size());
    m.ultima = note - 1;
    if (*rc::gen::arbitrary<bool>()) {
        m.prima = Tra(0, note - 1);
        m.ultima = Tra(m.prima, note - 1);
    }
    return m;
}

void Scrivi(BancoComposer& banco, const MelodiaModello& melodia) {
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        std::string note, durateTesto, attributi;
        for (const NotaModello& n : melodia.voci[voce]) {
            note += n.nota == 0 ? "00;" : std::to_string(n.nota) + ";";
            durateTesto += std::string(n.durata.token) + ";";
            attributi += std::string(1, n.attributo) + ";";
        }
        banco.Voce(voce, note, durateTesto, attributi);
        banco.finestra.mix.perVoce[voce].volume.Value = melodia.volumi[voce];
    }
    banco.Tratto(melodia.prima + 1, melodia.ultima + 1);
    banco.finestra.pulsi.Pulsazioni.PonTesto(std::to_string(melodia.pulsazioni));
    banco.finestra.pulsi.DurataPulsazioni.PonTesto(melodia.durataPulsi);
    banco.finestra.pulsi.InizioPuls.PonValore(melodia.primoPulso);
    if (melodia.conMetronomo) banco.finestra.pulsi.lblTs_Click();
}

int TickAttesi(const MelodiaModello& m) {
    if (!m.Intera())
        // The third note of a mixed group may have no tick.
        return std::max(Somma(m.voci[soprano], m.ultima + 1) - Somma(m.voci[soprano], m.prima) - 1,
                        0);
    int massimo = 0;
    for (const VoceModello& voce : m.voci)
        massimo = std::max(massimo, Somma(voce, static_cast<int>(voce.size())));
    return massimo;
}

Mandati MandatiAttesi(const MelodiaModello& m) {
    const int durata = TickAttesi(m);
    Mandati mandati;
    const auto aggiungi = [&](const Mandati& altri) {
        std::copy_if(altri.begin(), altri.end(), std::back_inserter(mandati),
                     [&](const Mandato& a) { return a.tick <= durata || a.canale == 10; });
    };
    if (m.conMetronomo) aggiungi(MandatiPulsi(m, PrimaDelTratto(m)));
    for (std::size_t voce = 0; voce < numeroVoci; ++voce) {
        Entrata entrata{static_cast<std::size_t>(m.prima), 0};
        if (voce != soprano) entrata = EntrataDopo(m.voci[voce], PrimaDelTratto(m));
        aggiungi(MandatiVoce(m.voci[voce], static_cast<int>(voce) + 1, m.volumi[voce], entrata));
    }
    std::stable_sort(mandati.begin(), mandati.end(),
                     [](const Mandato& a, const Mandato& b) { return a.tick < b.tick; });
    return mandati;
}

}  // namespace corvana::prova
