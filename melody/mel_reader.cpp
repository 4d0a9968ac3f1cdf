#include "melody/mel_reader.h"

#include <algorithm>

#include "core/text.h"
#include "melody/code_page.h"
#include "melody/melody.h"
#include "melody/numbers.h"

namespace corvana {

namespace {

constexpr int blocchiMassimi = 3;
constexpr std::size_t sopraCortaForma = 3;  // a longer line 5 has the metronome's fields

class Lettore {
public:
    Lettore(std::string_view byte, char separatore) : resto_(byte), separatore_(separatore) {}

    void Leggi(LetturaMel& letta);

private:
    bool Finito() const { return resto_.empty(); }
    std::string Riga();
    std::string Durate();
    void LeggiTesta(LetturaMel& letta);
    std::optional<std::string> LeggiRiferimenti(LetturaMel& letta);
    void LeggiBlocco(const std::string& testata, LetturaMel& letta);

    std::string_view resto_;
    char separatore_;
};

std::string Lettore::Riga() {
    if (Finito()) throw Guasto(guastoFineFile, "Input past end of file");
    const auto fine = static_cast<std::size_t>(
        std::find_if(resto_.begin(), resto_.end(), [](char c) { return c == '\r' || c == '\n'; }) -
        resto_.begin());
    std::string riga = DaCodicePagina(resto_.substr(0, fine));
    resto_.remove_prefix(fine);
    resto_.remove_prefix(resto_.starts_with("\r\n") ? 2 : Finito() ? 0 : 1);
    return riga;
}

std::string Lettore::Durate() {
    std::string riga = Riga();
    std::replace_if(
        riga.begin(), riga.end(), [](char c) { return c == '.' || c == ','; }, separatore_);
    return riga;
}

void Lettore::LeggiTesta(LetturaMel& letta) {
    letta.soprano[0] = Riga();
    letta.soprano[1] = Durate();
    letta.soprano[2] = Riga();
    letta.tempo = Riga();
    const std::string quinta = Riga();
    const std::string_view strumento = SenzaBlanchi(quinta);
    letta.conMetronomo = UnBytePerCarattere(strumento).size() > sopraCortaForma;
    if (letta.conMetronomo)
        letta.strumento = Dividi(strumento, ';');
    else
        letta.strumento = {std::string(strumento)};
}

/// Returns the line that may be a voice's header: the first one behind the bookmarks or, when its
/// shape isn't that of bookmarks, the line itself.
std::optional<std::string> Lettore::LeggiRiferimenti(LetturaMel& letta) {
    if (Finito()) return std::nullopt;
    std::string riga = Riga();
    std::vector<std::string> righe = Dividi(riga, ';');
    if (righe.size() == 2) return riga;
    if (!righe.empty()) righe.pop_back();
    letta.conRiferimenti = true;
    letta.riferimenti = std::move(righe);
    if (Finito()) return std::nullopt;
    return Riga();
}

void Lettore::LeggiBlocco(const std::string& testata, LetturaMel& letta) {
    const std::vector<std::string> campi = Dividi(testata, ';');
    const auto voce = campi.empty() ? std::nullopt : IndiceVoce(campi[0]);
    if (!voce || *voce == soprano) return;
    if (campi.size() < 2) throw Guasto(guastoIndice, "Subscript out of range");
    BloccoMel& blocco = letta.blocchi.emplace_back();
    blocco.voce = *voce;
    blocco.strumento = campi[1];
    blocco.testi.push_back(Riga());
    blocco.testi.push_back(Durate());
    blocco.testi.push_back(Riga());
}

void Lettore::Leggi(LetturaMel& letta) {
    LeggiTesta(letta);
    if (const auto testata = LeggiRiferimenti(letta)) LeggiBlocco(*testata, letta);
    for (int altri = 1; altri < blocchiMassimi && !Finito(); ++altri)
        LeggiBlocco(Riga(), letta);
}

}  // namespace

LetturaMel LeggiMel(std::string_view byte, char separatore) {
    LetturaMel letta;
    try {
        Lettore(byte, separatore).Leggi(letta);
    } catch (const Guasto& guasto) {
        letta.guasto = guasto;
    }
    return letta;
}

}  // namespace corvana
