#include "program/composer_voices.h"

#include "composer/composer.h"

namespace corvana {

std::string VociDelComposer::voceAttiva() const {
    return composer_.stato.melodia.voceAttiva;
}

void VociDelComposer::PonVoceAttiva(const std::string& nome) {
    composer_.stato.melodia.voceAttiva = nome;
}

std::int32_t VociDelComposer::strumento(std::size_t voce) const {
    return composer_.stato.melodia.voci.at(voce).strumento;
}

void VociDelComposer::SceltaStrum(std::int32_t programma) {
    composer_.mix.SceltaStrum(programma);
}

void VociDelComposer::VoceAttiva_Click(int Index) {
    composer_.mix.VoceAttiva_Click(Index);
}

std::string VociDelComposer::SiglaContralto() const {
    return composer_.mix.VoceAttiva[1].Caption();
}

bool VociDelComposer::SopranoVuoto() const {
    return composer_.stato.melodia.voci[soprano].Vuota();
}

void VociDelComposer::cmdPlay_Click() {
    composer_.play.cmdPlay_Click();
}

}  // namespace corvana
