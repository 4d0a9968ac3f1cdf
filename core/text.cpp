#include "core/text.h"

#include <algorithm>
#include <charconv>

#include "forms/fault.h"

namespace corvana {

std::vector<std::string> Dividi(std::string_view testo, char separatore) {
    std::vector<std::string> campi;
    if (testo.empty()) return campi;
    for (;;) {
        const std::size_t fine = testo.find(separatore);
        campi.emplace_back(testo.substr(0, fine));
        if (fine == std::string_view::npos) return campi;
        testo.remove_prefix(fine + 1);
    }
}

std::string_view SenzaBlanchi(std::string_view testo) {
    const std::size_t primo = testo.find_first_not_of(' ');
    if (primo == std::string_view::npos) return {};
    return testo.substr(primo, testo.find_last_not_of(' ') - primo + 1);
}

long NumeroIntero(std::string_view testo, long basso, long alto) {
    testo = SenzaBlanchi(testo);
    long numero = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
    if (errore == std::errc::invalid_argument || fine != testo.data() + testo.size())
        throw Guasto(guastoTipo, "Type mismatch");
    if (errore != std::errc{} || numero < basso || numero > alto)
        throw Guasto(guastoTraboccamento, "Overflow");
    return numero;
}

std::string Percento(long parte, long tutto) {
    const long centesimi = (parte * 20000 + tutto) / (2 * tutto);
    const std::string decimali = std::to_string(centesimi % 100);
    return std::to_string(centesimi / 100) + (decimali.size() < 2 ? ".0" : ".") + decimali + "%";
}

std::string UnBytePerCarattere(std::string_view testo) {
    std::string corto;
    for (const char c : testo) {
        const auto byte = static_cast<unsigned char>(c);
        const bool continua = (byte & 0xC0U) == 0x80U;
        if (!continua) corto += byte < 0x80U ? c : '?';
    }
    return corto;
}

std::string Minuscolo(std::string_view testo) {
    std::string minuscolo(testo);
    std::transform(minuscolo.begin(), minuscolo.end(), minuscolo.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return minuscolo;
}

}  // namespace corvana
