#include "melody/mel_writer.h"

#include "melody/code_page.h"
#include "melody/numbers.h"

namespace corvana {

namespace {

class Scrittore {
public:
    void Riga(std::string_view riga) { testo_.append(riga).append("\r\n"); }
    void Testi(const VoceMelodia& voce) {
        Riga(voce.testoNote);
        Riga(voce.testoDurate);
        Riga(voce.testoAttributi);
    }
    std::string Byte() const { return InCodicePagina(testo_); }

private:
    std::string testo_;
};

std::string RigaStrumento(const DaScrivere& melodia) {
    const std::int32_t strumento = melodia.voci[soprano].strumento;
    if (!melodia.metronomo) return CampoNumero(strumento);
    const MetronomoMel& metronomo = *melodia.metronomo;
    return std::to_string(strumento) + ";" + metronomo.pulsazioni + ";" +
           metronomo.durataPulsazioni + ";" + std::to_string(metronomo.inizioPuls);
}

}  // namespace

std::string ScriviMel(const DaScrivere& melodia) {
    Scrittore file;
    file.Testi(melodia.voci[soprano]);
    file.Riga(CampoNumero(melodia.tempo));
    file.Riga(RigaStrumento(melodia));
    if (!melodia.riferimenti.empty()) file.Riga(melodia.riferimenti);
    for (std::size_t voce = soprano + 1; voce < numeroVoci; ++voce) {
        if (melodia.voci[voce].Vuota()) continue;
        file.Riga(std::string(nomiVoci[voce]) + ";" + std::to_string(melodia.voci[voce].strumento));
        file.Testi(melodia.voci[voce]);
    }
    return file.Byte();
}

}  // namespace corvana
