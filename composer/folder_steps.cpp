#include "composer/folder_steps.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "melody/names.h"

namespace corvana {

namespace {

constexpr std::string_view segnoCartella = "» ";
constexpr std::string_view cartellaSopra = "» ..";

/// Rows that are put in order: what they are compared by is made once for each.
class RigheOrdinate {
public:
    void Aggiungi(std::string riga) { righe_.emplace_back(Minuscolo(riga), std::move(riga)); }
    /// Puts them behind the others; equal ones are one.
    void Versa(std::vector<std::string>& altre) {
        std::sort(righe_.begin(), righe_.end());
        righe_.erase(std::unique(righe_.begin(), righe_.end()), righe_.end());
        for (auto& [chiave, riga] : righe_)
            altre.push_back(std::move(riga));
    }

private:
    std::vector<std::pair<std::string, std::string>> righe_;
};

/// Behind the rows that are there already.
void VersaMelodie(const std::vector<VoceCartella>& voci, std::vector<std::string>& righe) {
    RigheOrdinate melodie;
    for (const VoceCartella& voce : voci)
        if (auto nome = voce.cartella ? std::nullopt : NomeDaFile(voce.nome))
            melodie.Aggiungi(std::move(*nome));
    melodie.Versa(righe);
}

}  // namespace

GenereRiga GenereDi(std::string_view riga) {
    if (riga.empty()) return GenereRiga::Nessuna;
    if (riga == cartellaSopra) return GenereRiga::Sopra;
    return riga.starts_with(segnoCartella) ? GenereRiga::Cartella : GenereRiga::Melodia;
}

std::string_view CartellaDellaRiga(std::string_view riga) {
    return riga.substr(segnoCartella.size());
}

std::string Aperta(std::string percorso, std::string_view riga) {
    const GenereRiga genere = GenereDi(riga);
    if (genere == GenereRiga::Cartella) percorso.append(CartellaDellaRiga(riga)).append("/");
    if (genere != GenereRiga::Sopra) return percorso;
    for (int volta = 0; volta < 2; ++volta)
        percorso.erase(std::min(percorso.rfind('/'), percorso.size()));
    return percorso + '/';
}

std::vector<std::string> RigheCartella(const std::string& percorso,
                                       const std::vector<VoceCartella>& voci) {
    RigheOrdinate cartelle;
    for (const VoceCartella& voce : voci)
        if (voce.cartella) cartelle.Aggiungi(std::string(segnoCartella) + voce.nome);
    std::vector<std::string> righe;
    if (percorso != "/") righe.emplace_back(cartellaSopra);
    cartelle.Versa(righe);
    VersaMelodie(voci, righe);
    return righe;
}

std::vector<std::string> NomiMelodie(const std::vector<VoceCartella>& voci) {
    std::vector<std::string> nomi;
    VersaMelodie(voci, nomi);
    return nomi;
}

bool SenzaMelodie(const std::vector<VoceCartella>& voci) {
    return std::none_of(voci.begin(), voci.end(), [](const VoceCartella& voce) {
        return voce.cartella || NomeDaFile(voce.nome).has_value();
    });
}

std::vector<std::string> RadiciDistinte(const std::vector<std::string>& radici) {
    std::vector<std::string> distinte;
    for (const std::string& data : radici) {
        if (data.empty()) continue;
        std::string radice = ConSeparatore(data);
        if (std::find(distinte.begin(), distinte.end(), radice) == distinte.end())
            distinte.push_back(std::move(radice));
    }
    return distinte;
}

int RadiceDi(const std::vector<std::string>& radici, std::string_view percorso) {
    int trovata = -1;
    std::size_t lunga = 0;
    for (std::size_t i = 0; i < radici.size(); ++i) {
        if (radici[i].size() <= lunga || !percorso.starts_with(radici[i])) continue;
        trovata = static_cast<int>(i);
        lunga = radici[i].size();
    }
    return trovata;
}

std::string ConSeparatore(std::string cartella) {
    if (!cartella.ends_with('/')) cartella += '/';
    return cartella;
}

}  // namespace corvana
