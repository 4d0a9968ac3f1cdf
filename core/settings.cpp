#include "core/settings.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <string_view>

#include "core/text.h"

namespace corvana {

namespace {

/// A value lies on one line: what would break the line is written behind a backslash.
std::string Protetto(std::string_view valore) {
    std::string riga;
    for (const char c : valore) {
        switch (c) {
            case '\\': riga += "\\\\"; break;
            case '\n': riga += "\\n"; break;
            case '\r': riga += "\\r"; break;
            case '\0': riga += "\\0"; break;
            default: riga += c;
        }
    }
    return riga;
}

std::optional<std::string> Svelato(std::string_view riga) {
    constexpr std::string_view segni = "\\nr0";
    constexpr std::string_view significati{"\\\n\r\0", 4};
    std::string valore;
    for (std::size_t i = 0; i < riga.size(); ++i) {
        if (riga[i] != '\\') {
            valore += riga[i];
            continue;
        }
        const auto segno = ++i < riga.size() ? segni.find(riga[i]) : std::string_view::npos;
        if (segno == std::string_view::npos) return std::nullopt;
        valore += significati[segno];
    }
    return valore;
}

auto Cerca(auto& voci, const std::string& nome) {
    return std::find_if(voci.begin(), voci.end(), [&](const auto& v) { return v.first == nome; });
}

/// All that the store is made with.
constexpr std::array nomi = {"Language", "CorvanaLastS", "LastDir", "IntoLastS"};

using Voci = std::vector<std::pair<std::string, std::string>>;

/// A value as it was stored, or what is told when it can't be read.
struct Letto {
    std::string valore;
    std::string difetto;
};

std::string TestoErrore(const std::string& testo, int codice) {
    return testo + std::to_string(codice);
}

Letto Estrai(const Voci& voci, const std::string& nome) {
    const auto voce = Cerca(voci, nome);
    if (voce == voci.end()) return {{}, TestoErrore("Error2 Querying key: ", ENOENT)};
    const auto valore = Svelato(voce->second);
    if (!valore) return {{}, TestoErrore("Error3 Querying key: ", EILSEQ)};
    return {valore->substr(0, valore->find('\0')), {}};
}

/// The four values, empty where they can't be read.
Voci Intera(const Voci& voci) {
    Voci intera;
    for (const char* nome : nomi)
        intera.emplace_back(nome, Protetto(Estrai(voci, nome).valore));
    return intera;
}

}  // namespace

void Impostazioni::Prepara() {
    Voci voci;
    const int errore = Apri(voci);
    if (errore == ENOENT) {
        file_.CreaCartella(std::filesystem::path(percorso_).parent_path().string());
        return Salva(Intera({}));
    }
    if (errore == EFBIG) return Ripara({}, TestoErrore("Error1 Opening key: ", errore));
    if (errore) return;
    for (const char* nome : nomi)
        if (const Letto letto = Estrai(voci, nome); !letto.difetto.empty())
            return Ripara(voci, letto.difetto);
}

/// What can't be put aside stays as it is, and will be told again.
void Impostazioni::Ripara(const Voci& voci, const std::string& difetto) {
    riquadri_.MsgBox(difetto);
    if (file_.Rinomina(percorso_, percorso_ + ".damaged") == 0) Salva(Intera(voci));
}

std::string Impostazioni::LeggiValore(const std::string& nome) {
    Voci voci;
    const int errore = Apri(voci);
    const Letto letto =
        errore ? Letto{{}, TestoErrore("Error1 Opening key: ", errore)} : Estrai(voci, nome);
    if (!letto.difetto.empty()) riquadri_.MsgBox(letto.difetto);
    return letto.valore;
}

bool Impostazioni::Contiene(const std::string& nome) {
    Voci voci;
    return Apri(voci) == 0 && Cerca(voci, nome) != voci.end();
}

void Impostazioni::ScriviValore(const std::string& nome, const std::string& valore) {
    Voci voci;
    if (Apri(voci)) return;
    const auto voce = Cerca(voci, nome);
    if (voce == voci.end())
        voci.emplace_back(nome, Protetto(valore));
    else
        voce->second = Protetto(valore);
    Salva(voci);
}

int Impostazioni::Apri(Voci& voci) {
    std::string contenuto;
    if (const int errore = file_.Leggi(percorso_, contenuto, limiteTesti)) return errore;
    for (const std::string& riga : Dividi(contenuto, '\n'))
        if (const auto uguale = riga.find('='); uguale != std::string::npos)
            voci.emplace_back(riga.substr(0, uguale), riga.substr(uguale + 1));
    return 0;
}

void Impostazioni::Salva(const Voci& voci) {
    std::string contenuto;
    for (const auto& [nome, valore] : voci)
        contenuto.append(nome).append("=").append(valore).append("\n");
    file_.ScriviAtomico(percorso_, contenuto);
}

}  // namespace corvana
