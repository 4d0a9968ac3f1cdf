#include "tests/melody/random_melody.h"

#include <rapidcheck.h>

#include "melody/code_page.h"
#include "melody/numbers.h"

namespace corvana::prova {

namespace {

double DurataACaso() {
    const double figura = *rc::gen::element(4.0, 2.0, 1.0, 0.5, 0.25, 0.125, 0.0625);
    const double parte = *rc::gen::element(1.0, 1.5, 2.0 / 3);
    const double qualsiasi = *rc::gen::inRange(1, 1000000) / 777.0;
    return *rc::gen::arbitrary<bool>() ? qualsiasi : figura * parte * *rc::gen::inRange(1, 13);
}

void AggiungiNota(VoceMelodia& voce, char separatore) {
    const bool pausa = *rc::gen::inRange(0, 5) == 0;
    voce.testoNote += pausa ? "00;" : std::to_string(*rc::gen::inRange(36, 96)) + ";";
    voce.testoDurate += TestoNumero(DurataACaso(), separatore) + ";";
    voce.testoAttributi += pausa ? "p;" : *rc::gen::element<std::string>("n;", "s;", "t;", "a;");
}

VoceMelodia VoceACaso(char separatore) {
    VoceMelodia voce;
    voce.strumento = *rc::gen::inRange(0, 128);
    const int note = *rc::gen::inRange(1, 30);
    for (int i = 0; i < note; ++i)
        AggiungiNota(voce, separatore);
    return voce;
}

/// Any characters of the code page but ';' and the separator of bookmarks.
std::string EtichettaACaso() {
    const auto carattere = rc::gen::suchThat(
        rc::gen::inRange(0x20, 0x100), [](int codice) { return codice != ';' && codice != 0xF7; });
    std::string byte;
    for (const int codice : *rc::gen::resize(12, rc::gen::container<std::vector<int>>(carattere)))
        byte += static_cast<char>(codice);
    return DaCodicePagina(byte.substr(0, 12));
}

std::vector<std::string> RiferimentiACaso() {
    std::vector<std::string> riferimenti;
    if (*rc::gen::arbitrary<bool>()) return riferimenti;
    riferimenti.push_back("1 ÷ 30 ÷" + EtichettaACaso());
    const int altri = *rc::gen::inRange(1, 6);
    for (int i = 0; i < altri; ++i)
        riferimenti.push_back(std::to_string(*rc::gen::inRange(1, 31)) + " ÷ " +
                              std::to_string(*rc::gen::inRange(1, 31)) + " ÷ " + EtichettaACaso());
    return riferimenti;
}

}  // namespace

ContenutoMel MelodiaACaso(char separatore) {
    ContenutoMel melodia;
    melodia.voci[soprano] = VoceACaso(separatore);
    for (std::size_t voce = soprano + 1; voce < numeroVoci; ++voce)
        if (*rc::gen::arbitrary<bool>()) melodia.voci[voce] = VoceACaso(separatore);
    melodia.tempo = *rc::gen::inRange(20, 251);
    if (*rc::gen::arbitrary<bool>()) {
        const int pulsazioni = *rc::gen::inRange(1, 10);
        melodia.metronomo = {std::to_string(pulsazioni),
                             *rc::gen::element<std::string>("1", "2", "4", "8", "16"),
                             *rc::gen::inRange(1, pulsazioni + 1)};
    }
    melodia.riferimenti = RiferimentiACaso();
    return melodia;
}

}  // namespace corvana::prova
