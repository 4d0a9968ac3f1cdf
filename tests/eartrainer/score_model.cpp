#include "tests/eartrainer/score_model.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace corvana::prova {

namespace {

using P = PaginaInto;

/// The number at the end of the name of one of an array of controls, if it is one.
std::optional<int> Indice(const std::string& controllo, const std::string& serie) {
    if (!controllo.starts_with(serie) || controllo.size() == serie.size()) return {};
    const std::string resto = controllo.substr(serie.size());
    if (!std::all_of(resto.begin(), resto.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return {};
    return std::stoi(resto);
}

template <class Insieme>
bool Qualcuno(const Insieme& insieme) {
    return std::find(insieme.begin(), insieme.end(), true) != insieme.end();
}

/// Pitch class of a name between "<" and ">".
int ClasseDelNome(const std::string& passo) {
    static const std::map<std::string, int> bianchi = {
        {"Do", 0}, {"Re", 2}, {"Mi", 4}, {"Fa", 5}, {"Sol", 7}, {"La", 9}, {"Si", 11},
        {"C", 0},  {"D", 2},  {"E", 4},  {"F", 5},  {"G", 7},   {"A", 9},  {"B", 11}};
    std::string nome = passo.substr(1, passo.size() - 2);
    const int alterazione = nome.back() == '#' ? 1 : nome.back() == 'b' ? 11 : 0;
    if (alterazione) nome.pop_back();
    return (bianchi.at(nome) + alterazione) % 12;
}

}  // namespace

ModelloPunti::ModelloPunti(PaginaInto pagina) : davanti_(pagina) {
    bandiere_.at(static_cast<std::size_t>(pagina)) = true;
    Riattiva();
}

void ModelloPunti::Azzera() {
    giuste_ = sbagliate_ = 0;
}

void ModelloPunti::Entra(P pagina) {
    davanti_ = pagina;
    const auto bandiera = [&](P quale) -> bool& {
        return bandiere_.at(static_cast<std::size_t>(quale));
    };
    bandiera(pagina) = true;
    if (pagina == P::Intervalli) bandiera(P::Intonazione) = false;
    if (pagina == P::Tasti) bandiera(P::Tonalita) = false;
    if (pagina == P::Accordi)
        for (const P altra : {P::Intonazione, P::Intervalli, P::Tasti, P::Tonalita})
            bandiera(altra) = false;
    if (pagina != P::Tonalita) Azzera();
    if (pagina == P::Intonazione) altezza_ = Altezza::Pronta;
    if (pagina == P::Intonazione || pagina == P::Accordi) {
        intervalli_ = false;
        limitiAccordo_ = 0;
    }
    if (pagina == P::Intervalli)
        for (std::size_t n = 0; n < dimensioni_.size(); ++n)
            dimensioni_.at(n) = n == 3 || n == 4 || n == 7;
}

void ModelloPunti::Riattiva() {
    segno_ = ' ';
    if (altezza_ == Altezza::Ferma) altezza_ = Altezza::Pronta;
    for (const P pagina : pagineInto)
        if (bandiere_.at(static_cast<std::size_t>(pagina))) Entra(pagina);
}

void ModelloPunti::Clic(const std::string& controllo) {
    domanda_ = false;
    static const std::map<std::string, P> voci = {{"mnuNotA", P::Intonazione},
                                                  {"mnuRint", P::Intervalli},
                                                  {"mnuRicTa", P::Accordi},
                                                  {"mnuRicTasto", P::Tasti},
                                                  {"mnuRicTo", P::Tonalita}};
    if (const auto voce = voci.find(controllo); voce != voci.end()) return Entra(voce->second);
    if (controllo == "mnuSs") return Riattiva();
    if (controllo == "mnuNotAnglo" || controllo == "mnuNotLat") anglo_ = controllo == "mnuNotAnglo";
    if (controllo.starts_with("lblRip")) domanda_ = Corre(davanti_);
    if (Avvio(controllo) || Scelta(controllo)) return;
    Risposta(controllo);
}

bool ModelloPunti::Avvio(const std::string& controllo) {
    static const std::map<std::string, P> bottoni = {{"IntoStart", P::Intonazione},
                                                     {"CmdIntStart", P::Intervalli},
                                                     {"ComdRacStart", P::Accordi},
                                                     {"cmdRicTasto", P::Tasti},
                                                     {"cmdT", P::Tonalita}};
    const auto bottone = bottoni.find(controllo);
    if (bottone == bottoni.end()) return false;
    const P pagina = bottone->second;
    if (pagina == P::Accordi && limitiAccordo_ < 2) return true;
    const bool avvia = Corre(pagina) = !Corre(pagina);
    if (pagina == P::Intonazione) altezza_ = avvia ? Altezza::Corre : Altezza::Ferma;
    if (pagina == P::Intervalli) intervalli_ = avvia && Qualcuno(dimensioni_);
    if (!avvia || (pagina == P::Intervalli && !intervalli_)) return true;
    Azzera();
    domanda_ = true;
    if (pagina == P::Accordi && !Qualcuno(tipi_)) domanda_ = false;
    return true;
}

bool ModelloPunti::Scelta(const std::string& controllo) {
    if (controllo == "cmdReimposta") {
        altezza_ = Altezza::SiImposta;
        limiti_ = 0;
        Azzera();
        return true;
    }
    if (controllo == "cmdRes") limitiAccordo_ = 0;
    if (const auto n = Indice(controllo, "Il")) {
        bool& questa = dimensioni_.at(static_cast<std::size_t>(*n));
        if (*n == 0)
            dimensioni_.fill(!questa);
        else
            questa = !questa;
        return true;
    }
    if (const auto n = Indice(controllo, "EsclTa")) {
        bool& questo = tipi_.at(static_cast<std::size_t>(*n));
        questo = !questo;
        return true;
    }
    return false;
}

bool ModelloPunti::Chiede(P pagina) const {
    switch (pagina) {
        case P::Intonazione:
            return !mai_ && (altezza_ == Altezza::Pronta || altezza_ == Altezza::Corre);
        case P::Intervalli: return intervalli_ && Qualcuno(dimensioni_);
        case P::Accordi: return Corre(pagina) && Qualcuno(tipi_);
        case P::Tasti:
        case P::Tonalita: return Corre(pagina);
    }
    return false;
}

void ModelloPunti::Conta(bool esatta) {
    ++(esatta ? giuste_ : sbagliate_);
    segno_ = esatta ? '+' : '-';
    domanda_ = esatta;
}

void ModelloPunti::TastoSchermo(int tasto) {
    if (davanti_ == P::Intonazione && altezza_ == Altezza::SiImposta) {
        // The third click that is taken moves the reference, which is a note like any other.
        if (limiti_ == 0) primo_ = tasto;
        if (limiti_ == 0 || (limiti_ == 1 && std::abs(tasto - primo_) >= 2)) ++limiti_;
        return;
    }
    if (davanti_ == P::Accordi && limitiAccordo_ < 2) {
        const bool sotto = limitiAccordo_ == 1 && tasto < primo_;
        if (tasto > 51 && !sotto) return;
        if (limitiAccordo_++ == 0) primo_ = tasto;
        return;
    }
    if (davanti_ == P::Intonazione && Chiede(davanti_)) Conta(tasto == nota_);
    if (davanti_ == P::Tasti && Chiede(davanti_))
        Conta(anglo_ == chiestoAnglo_ && tasto % 12 == classe_);
}

bool ModelloPunti::Risposta(const std::string& controllo) {
    if (const auto n = Indice(controllo, "lb")) TastoSchermo(*n);
    if (const auto n = Indice(controllo, "LblSemi"); n && Chiede(P::Intervalli))
        Conta(*n == semitoni_);
    if (const auto n = Indice(controllo, "TipoAcc"); n && Chiede(P::Accordi)) Conta(*n == tipo_);
    if (const auto n = Indice(controllo, "T"); n && Chiede(P::Tonalita)) Conta(*n == cella_);
    return true;
}

void ModelloPunti::Dopo(const std::vector<Colpo>& colpi, const std::string& passo) {
    if (davanti_ == P::Intonazione && !colpi.empty() && colpi.back().second == 100) mai_ = false;
    if (!domanda_) return;
    if (davanti_ == P::Accordi) tipo_.reset();
    if (davanti_ == P::Tasti && passo.starts_with("<")) {
        classe_ = ClasseDelNome(passo);
        chiestoAnglo_ = anglo_;
    }
    if (colpi.empty()) return;
    if (davanti_ == P::Intonazione) nota_ = colpi.back().first - 36;
    if (davanti_ == P::Intervalli) {
        const auto [bassa, alta] = std::minmax_element(colpi.begin(), colpi.end());
        semitoni_ = alta->first - bassa->first;
    }
    if (davanti_ == P::Accordi) {
        static const std::map<std::pair<int, int>, int> tipi = {
            {{3, 7}, 0}, {{4, 7}, 1}, {{3, 6}, 2}, {{4, 8}, 3}};
        tipo_ = tipi.at({colpi[1].first - colpi[0].first, colpi[2].first - colpi[0].first});
    }
    if (davanti_ == P::Tonalita)
        cella_ = colpi[1].first % 12 + (colpi[3].first - colpi[1].first == 3 ? 12 : 0);
}

std::optional<std::string> ModelloPunti::Giusto() const {
    if (!Chiede(davanti_)) return {};
    switch (davanti_) {
        case P::Intonazione: return "lb" + std::to_string(nota_);
        case P::Intervalli: return "LblSemi" + std::to_string(semitoni_);
        case P::Accordi:
            return tipo_ ? std::optional("TipoAcc" + std::to_string(*tipo_)) : std::nullopt;
        case P::Tasti: return "lb" + std::to_string(24 + classe_);
        case P::Tonalita: return "T" + std::to_string(cella_);
    }
    return {};
}

std::string ModelloPunti::Punti() const {
    std::string percento = "0";
    if (const int tutte = giuste_ + sbagliate_) {
        const int centesimi = (20000 * giuste_ + tutte) / (2 * tutte);
        std::array<char, 16> testo{};
        std::snprintf(testo.data(), testo.size(), "%d.%02d%%", centesimi / 100, centesimi % 100);
        percento = testo.data();
    }
    return std::to_string(giuste_) + " " + std::to_string(sbagliate_) + " " + percento + " " +
           segno_;
}

}  // namespace corvana::prova
