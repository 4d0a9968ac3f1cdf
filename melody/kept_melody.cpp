#include "melody/kept_melody.h"

#include <charconv>
#include <system_error>

namespace corvana {

namespace {

constexpr std::string_view testata = "corvana kept melody 1\n";
constexpr std::size_t cifreSomma = 16;
constexpr int esadecimale = 16;

/// Walks over the fields in their one order: a writer appends them, a reader takes them.
template <class Passo, class Melodia>
void Percorri(Passo& passo, Melodia& melodia) {
    for (auto& voce : melodia.voci) {
        passo.Testo(voce.note);
        passo.Testo(voce.durate);
        passo.Testo(voce.attributi);
        passo.Numero(voce.strumento);
    }
    passo.Numero(melodia.tempo);
    passo.Segno(melodia.metroAttivo);
    passo.Testo(melodia.pulsazioni);
    passo.Testo(melodia.durataPulsazioni);
    passo.Numero(melodia.inizioPuls);
    passo.Testo(melodia.nome);
    passo.Testo(melodia.nomeMostrato);
    passo.Testo(melodia.cartella);
    passo.Testi(melodia.riferimenti);
}

class ScrittoreTenuta {
public:
    void Testo(const std::string& testo) {
        byte_.append(std::to_string(testo.size())).append(":").append(testo).append("\n");
    }
    void Numero(std::int64_t numero) { Testo(std::to_string(numero)); }
    void Segno(bool segno) { Numero(segno ? 1 : 0); }
    void Testi(const std::vector<std::string>& testi) {
        Numero(static_cast<std::int64_t>(testi.size()));
        for (const std::string& testo : testi)
            Testo(testo);
    }
    std::string Byte() && { return std::move(byte_); }

private:
    std::string byte_{testata};
};

/// Once something isn't as it was written, all that follows is empty.
class LettoreTenuta {
public:
    explicit LettoreTenuta(std::string_view byte) : resto_(byte) {}

    void Testo(std::string& testo) { testo = Prendi(Lunghezza()); }
    void Numero(std::int32_t& numero) {
        const std::string_view cifre = Prendi(Lunghezza());
        const char* const fine = cifre.data() + cifre.size();
        const auto [dove, errore] = std::from_chars(cifre.data(), fine, numero);
        // Only the one spelling that the writer has.
        if (errore != std::errc() || dove != fine || std::to_string(numero) != cifre) Rinuncia();
    }
    void Segno(bool& segno) {
        std::int32_t numero = 0;
        Numero(numero);
        if (numero != 0 && numero != 1) Rinuncia();
        segno = numero == 1;
    }
    void Testi(std::vector<std::string>& testi) {
        std::int32_t quanti = 0;
        Numero(quanti);
        if (quanti < 0) Rinuncia();
        for (std::int32_t i = 0; i < quanti && !guasto_; ++i)
            Testo(testi.emplace_back());
    }
    bool Riuscito() const { return !guasto_ && resto_.empty(); }

private:
    void Rinuncia() { guasto_ = true; }
    std::size_t Lunghezza() {
        std::size_t lunghezza = 0;
        const char* const fine = resto_.data() + resto_.size();
        const auto [dove, errore] = std::from_chars(resto_.data(), fine, lunghezza);
        const auto cifre = static_cast<std::size_t>(dove - resto_.data());
        const bool scritta = std::to_string(lunghezza) == resto_.substr(0, cifre);
        if (errore != std::errc() || !scritta || dove == fine || *dove != ':') {
            Rinuncia();
            return 0;
        }
        resto_.remove_prefix(cifre + 1);
        return lunghezza;
    }
    std::string_view Prendi(std::size_t quanti) {
        if (guasto_ || quanti >= resto_.size() || resto_[quanti] != '\n') {
            Rinuncia();
            return {};
        }
        const std::string_view preso = resto_.substr(0, quanti);
        resto_.remove_prefix(quanti + 1);
        return preso;
    }

    std::string_view resto_;
    bool guasto_ = false;
};

}  // namespace

/// FNV-1a of 64 bits: it is to find damage, not malice.
std::string SommaTenuta(std::string_view corpo) {
    std::uint64_t somma = 0xCBF29CE484222325U;
    for (const char c : corpo)
        somma = (somma ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    std::array<char, cifreSomma> cifre{};
    const auto fatte = std::to_chars(cifre.data(), cifre.data() + cifre.size(), somma, esadecimale);
    const std::string scritta(cifre.data(), fatte.ptr);
    return std::string(cifreSomma - scritta.size(), '0') + scritta;
}

std::string ScriviTenuta(const MelodiaTenuta& melodia) {
    ScrittoreTenuta scrittore;
    Percorri(scrittore, melodia);
    std::string byte = std::move(scrittore).Byte();
    return byte += SommaTenuta(byte);
}

std::optional<MelodiaTenuta> LeggiTenuta(std::string_view byte) {
    if (!byte.starts_with(testata) || byte.size() < testata.size() + cifreSomma) return {};
    const std::string_view corpo = byte.substr(0, byte.size() - cifreSomma);
    if (byte.substr(corpo.size()) != SommaTenuta(corpo)) return {};
    LettoreTenuta lettore(corpo.substr(testata.size()));
    MelodiaTenuta melodia;
    Percorri(lettore, melodia);
    if (!lettore.Riuscito()) return {};
    return melodia;
}

}  // namespace corvana
