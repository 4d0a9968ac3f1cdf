// What the user of the properties does.
#include <rapidcheck.h>

#include "tests/composer/editor_model.h"
#include "tests/composer/voice_model.h"

namespace corvana::prova {

namespace {

/// The user clicks what can be clicked.
bool Offerto(const BancoAMano& b, const char* controllo) {
    return b.finestra.Trova(controllo)->Utilizzabile();
}

void Scegli(BancoAMano& b, ModelloEditor& m) {
    switch (Tra(0, 5)) {
        case 0: return b.Figura(m.figura = Tra(0, 6));
        case 1: b.Tocca("ckConsAtt", m.conserva = Tra(0, 1) == 1); return;
        case 2:
            b.Tocca("lblAt");
            if (m.accentoVisibile) m.accentoAcceso = !m.accentoAcceso;
            return;
        case 3:
            m.per = Tra(0, 2) == 0 ? Tra(0, 12) : 1;
            b.ScriviIn("PausaPer", std::to_string(m.per));
            return b.Esci("PausaPer");
        default: {
            const int attributo = Tra(0, 5);
            b.Attributo(attributo);
            return m.PremiAttributo(attributo);
        }
    }
}

void Inserisci(BancoAMano& b, ModelloEditor& m) {
    const int tasto = Tra(36, 95);
    switch (Tra(0, 4)) {
        case 0: return b.PremiTasto(tasto), m.Premi(tasto);
        case 1:
        case 2: return b.DoppioClick(tasto), m.DoppioClick(tasto);
        case 3: return b.Nota(), m.InserisciNota();
        default: return b.Pausa(), m.InserisciPausa();
    }
}

void ScegliAttrezzi(BancoAMano& b, ModelloEditor& m) {
    if (!Offerto(b, "cmbPer")) return;
    switch (Tra(0, 2)) {
        case 0: return b.Tocca("cmbDurata", m.parola = Tra(0, 13));
        case 1: return m.volte = Tra(1, 12), b.Tocca("cmbPer", m.volte - 1);
        default: {
            constexpr std::array lettere = {"n", "s", "t", "a", "p"};
            const int riga = Tra(0, 4);
            m.attributoScelto = lettere.at(static_cast<std::size_t>(riga));
            return b.Tocca("cmbAttributi", riga);
        }
    }
}

void Ritocca(BancoAMano& b, ModelloEditor& m) {
    switch (Tra(0, 2)) {
        case 0:
            if (Offerto(b, "cmdModifica0")) m.Modifica();
            return b.Tocca("cmdModifica0");
        case 1:
            if (Offerto(b, "cmdInsertNote")) m.InserisciDietro();
            return b.Tocca("cmdInsertNote");
        default:
            if (Offerto(b, "cmdCancNota")) m.Cancella();
            return b.Tocca("cmdCancNota");
    }
}

/// The soprano's range, which any edit that goes through the voice's end forgets.
void PonTratto(BancoAMano& b, ModelloEditor& m) {
    VoceEditor& voce = m.voci[soprano];
    if (voce.note.empty()) return;
    voce.prima = Tra(1, static_cast<int>(voce.note.size()));
    voce.ultima = Tra(voce.prima, static_cast<int>(voce.note.size()));
    b.Tratto(voce.prima, voce.ultima);
}

/// The first click of a paste, at times both; a voice that has grown long enough is left alone.
void Incolla(BancoAMano& b, ModelloEditor& m) {
    constexpr std::size_t lunga = 60;
    if (!Offerto(b, "cmdPaste") || m.Voce().note.size() > lunga) return;
    for (int volte = Tra(1, 2); volte > 0; --volte)
        b.Tocca("cmdPaste"), m.Incolla();
}

/// Any number into a box of the range.
void ScriviTratto(BancoAMano& b, ModelloEditor& m) {
    const auto voce = static_cast<std::size_t>(Tra(0, 3));
    const bool ultima = voce != soprano || Tra(0, 1) == 1;
    const PannelloVoci::ControlliVoce& caselle = b.finestra.voci.perVoce[voce];
    const std::string& nome = (ultima ? caselle.ultima : caselle.prima).Name;
    const int numero = Tra(-1, static_cast<int>(m.voci[voce].note.size()) + 2);
    b.ScriviIn(nome, std::to_string(numero));
    b.Esci(nome);
    m.ScriviTratto(voce, ultima, numero);
}

void Altro(BancoAMano& b, ModelloEditor& m) {
    switch (Tra(0, 8)) {
        case 0: return PonTratto(b, m);
        case 1:
            if (Offerto(b, "cmdNpp")) m.passoAperto = false;
            return b.Tocca("cmdNpp");
        case 2:
            if (Tra(0, 3) > 0) return;
            b.Tocca("cmdReset");
            return m.Azzera();
        case 3:
        case 4:
        case 5: {
            const int voce = Tra(0, 3);
            b.Tocca("VoceAttiva" + std::to_string(voce));
            return m.ScegliVoce(static_cast<std::size_t>(voce));
        }
        default:
            if (Offerto(b, "cmdCanc")) m.Taglia();
            return b.Tocca("cmdCanc");
    }
}

void UsaTratti(BancoAMano& b, ModelloEditor& m) {
    switch (Tra(0, 4)) {
        case 0:
            b.Tocca("lblIncolla");
            m.attendeIncolla = false;
            return;
        case 1: return Incolla(b, m);
        default: return ScriviTratto(b, m);
    }
}

}  // namespace

void GestoACaso(BancoAMano& banco, ModelloEditor& modello) {
    switch (Tra(0, 10)) {
        case 0:
        case 1: return Scegli(banco, modello);
        case 2:
        case 3:
        case 4: return Inserisci(banco, modello);
        case 5: return ScegliAttrezzi(banco, modello);
        case 6: return Ritocca(banco, modello);
        case 7: return Altro(banco, modello);
        case 8: return UsaTratti(banco, modello);
        default: {
            const int verso = Tra(0, 1);
            banco.Passo(verso);
            return modello.Passo(verso);
        }
    }
}

}  // namespace corvana::prova
