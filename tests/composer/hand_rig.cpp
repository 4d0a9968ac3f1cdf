#include "tests/composer/hand_rig.h"

#include <algorithm>
#include <cmath>

namespace corvana::prova {

std::ostream& operator<<(std::ostream& dove, const NotaSentita& s) {
    return dove << "{" << s.ms << ", " << s.canale << ", " << s.nota << ", " << s.velocita << "}";
}

void BancoAMano::Tocca(const std::string& controllo, int valore) {
    Subito(Fatto::Click, controllo, valore);
}

void BancoAMano::ScegliIn(const std::string& lista, const std::string& riga) {
    const auto& righe = dynamic_cast<Lista&>(*finestra.Trova(lista)).List();
    const auto trovata = std::find(righe.begin(), righe.end(), riga);
    if (trovata == righe.end()) throw std::logic_error(lista + " has no row " + riga);
    Tocca(lista, static_cast<int>(trovata - righe.begin()));
}

void BancoAMano::ScriviIn(const std::string& casella, const std::string& testo) {
    Evento e;
    e.fatto = Fatto::Change;
    e.testo = testo;
    coda.Aggiungi(Fatta(e, casella));
    pompa.PompaEventi();
}

void BancoAMano::Esci(const std::string& casella) {
    Subito(Fatto::LostFocus, casella);
}

void BancoAMano::PremiTasto(int nota) {
    const std::string tasto = "lb" + std::to_string(nota - 36);
    for (const Fatto fatto : {Fatto::MouseDown, Fatto::MouseUp, Fatto::Click})
        Subito(fatto, tasto);
}

void BancoAMano::DoppioClick(int nota) {
    PremiTasto(nota);
    const std::string tasto = "lb" + std::to_string(nota - 36);
    Subito(Fatto::DblClick, tasto);
    Subito(Fatto::MouseUp, tasto);
}

void BancoAMano::NotaDi(int nota) {
    inserimento.notaAttiva = static_cast<std::int16_t>(nota);
    Nota();
}

TestiVoce BancoAMano::Testi(std::size_t voce) const {
    const VoceMelodia& v = melodia.voci[voce];
    return {v.testoNote, v.testoDurate, v.testoAttributi};
}

int BancoAMano::AttributoAcceso() const {
    const auto& bottoni = finestra.inserimento.cmdAttrNota;
    int acceso = 6;
    for (std::size_t i = 0; i < bottoni.size(); ++i)
        if (bottoni[i].BackColor() == Rgb(10, 254, 10))
            acceso = acceso == 6 ? static_cast<int>(i) : -1;
    return acceso;
}

NoteSentite BancoAMano::Sentite(const std::function<void()>& gesto) {
    const std::size_t prima = uscita.messaggi.size();
    const double inizio = pompa.Adesso();
    gesto();
    NoteSentite sentite;
    for (std::size_t i = prima; i < uscita.messaggi.size(); ++i) {
        const auto& [istante, messaggio] = uscita.messaggi[i];
        if ((messaggio & 0xF0U) != 0x90U) continue;
        sentite.push_back({static_cast<int>(std::lround((istante - inizio) * 1000)),
                           static_cast<int>(messaggio & 0x0FU) + 1,
                           static_cast<int>(messaggio >> 8 & 0xFFU),
                           static_cast<int>(messaggio >> 16 & 0xFFU)});
    }
    return sentite;
}

}  // namespace corvana::prova
