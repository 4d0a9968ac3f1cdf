#include "melody/bookmark.h"

#include "core/text.h"
#include "melody/tokens.h"

namespace corvana {

namespace {

constexpr std::string_view divisorio = "÷";
constexpr int lettereNome = 12;

bool SeguitoUtf8(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

}  // namespace

Riferimento::Riferimento(long prima, long ultima, std::string_view nome)
    : campi_{std::to_string(prima) + " ", " " + std::to_string(ultima) + " ",
             " " + std::string(nome)} {}

Riferimento Riferimento::Intero(long note, std::string_view nome) {
    Riferimento intero;
    intero.campi_ = {"1 ", " " + std::to_string(note) + " ", std::string(nome)};
    return intero;
}

Riferimento Riferimento::Leggi(std::string_view testo) {
    Riferimento letto;
    for (std::size_t fine = testo.find(divisorio); fine != std::string_view::npos;
         fine = testo.find(divisorio)) {
        letto.campi_.emplace_back(testo.substr(0, fine));
        testo.remove_prefix(fine + divisorio.size());
    }
    letto.campi_.emplace_back(testo);
    return letto;
}

std::int16_t Riferimento::PrimaNota() const {
    return IndiceNota(Elemento(campi_, 0));
}

std::int16_t Riferimento::UltimaNota() const {
    return IndiceNota(Elemento(campi_, 1));
}

std::string Riferimento::Nome() const {
    return std::string(SenzaBlanchi(Elemento(campi_, 2)));
}

void Riferimento::Rinomina(std::string_view nome) {
    const std::string prima = Elemento(campi_, 0);
    const std::string ultima = Elemento(campi_, 1);
    campi_ = {prima, ultima, " " + std::string(nome)};
}

std::string Riferimento::Testo() const {
    std::string testo;
    for (const std::string& campo : campi_)
        testo.append(&campo == &campi_.front() ? "" : divisorio).append(campo);
    return testo;
}

std::string TestoRiferimenti(std::span<const std::string> riferimenti) {
    std::string testo;
    for (const std::string& riferimento : riferimenti)
        testo.append(riferimento).append(";");
    return testo;
}

std::string NomeRiferimento(std::string_view risposta) {
    risposta = SenzaBlanchi(risposta);
    int lettere = 0;
    for (std::size_t i = 0; i < risposta.size(); ++i)
        if (!SeguitoUtf8(risposta[i]) && ++lettere > lettereNome)
            return std::string(risposta.substr(0, i));
    return std::string(risposta);
}

}  // namespace corvana
