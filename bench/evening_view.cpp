#include "bench/evening_view.h"

#include <algorithm>
#include <array>
#include <sstream>

#include "core/real_files.h"
#include "melody/bookmark.h"
#include "melody/kept_melody.h"

namespace corvana::misura {

namespace {

int Quante(const std::string& testoNote) {
    return static_cast<int>(std::count(testoNote.begin(), testoNote.end(), ';'));
}

std::string Byte(const std::string& percorso) {
    std::string byte;
    FileReali().Leggi(percorso, byte);
    return byte;
}

}  // namespace

std::string Riga(const Veduta& v) {
    return std::string(v.modificata ? "1" : "0") + '\t' + v.nome + '\t' + std::to_string(v.note) +
           '\t' + v.riferimenti;
}

std::optional<Veduta> Letta(const std::string& riga) {
    std::array<std::string, 4> campi;
    std::istringstream letto(riga);
    for (std::string& campo : campi)
        std::getline(letto, campo, '\t');
    if (campi[0].empty()) return {};
    return Veduta{campi[0] == "1", campi[1], std::stoi(campi[2]), campi[3]};
}

std::optional<Veduta> NellaFinestra(prova::Sera& sera) {
    VistaFinestra* davanti = sera.scrivania.Davanti();
    if (!davanti || davanti->Finestra().objectName() != QLatin1String("frmComposer")) return {};
    const auto stato = [&](const char* nome) -> const Aspetto& {
        return prova::StatoDi(sera.scrivania, QLatin1String(nome));
    };
    const std::string& note = stato("lblNt").Caption;
    return Veduta{stato("lblModificato").Visible, stato("lblNome").Caption,
                  note.empty() ? 0 : std::stoi(note), TestoRiferimenti(stato("lstBookMark").List)};
}

std::optional<Veduta> NellaTenuta(const std::string& percorso) {
    const auto tenuta = LeggiTenuta(Byte(percorso));
    if (!tenuta) return {};
    return Veduta{true, tenuta->nomeMostrato, Quante(tenuta->voci.front().note),
                  TestoRiferimenti(tenuta->riferimenti)};
}

bool Salvata(const std::string& cartella, const Veduta& veduta) {
    const std::string inizio = "Salvato: ";
    std::string nome = veduta.nome;
    if (nome.starts_with(inizio)) nome.erase(0, inizio.size());
    if (nome.empty() || nome == "quarta") return true;
    const LetturaMel letta = LeggiMel(Byte(cartella + nome + ".mel"), '.');
    return Quante(letta.soprano.front()) == veduta.note &&
           TestoRiferimenti(letta.riferimenti) == veduta.riferimenti;
}

}  // namespace corvana::misura
