// A plain model of the melody window's editors: lists of notes instead of texts, worked out from
// what the user does and nothing else. Beside it the gestures, drawn within a property.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "tests/composer/hand_rig.h"

namespace corvana::prova {

struct NotaEditor {
    std::string nota, durata, attributo;
    bool operator==(const NotaEditor&) const = default;
};
using NoteEditor = std::vector<NotaEditor>;

struct VoceEditor {
    NoteEditor note;
    NoteEditor spezzate;        ///< as they were when the voice was last split: a reset forgets to
    int prima = 0, ultima = 0;  ///< range boxes, from 1; 0 for blank
};

/// What the user sees and has chosen.
struct ModelloEditor {
    std::array<VoceEditor, numeroVoci> voci;
    std::size_t attiva = soprano;
    int nota = 60, figura = 2, attributo = 6, conta = 0, per = 1;
    bool accentoVisibile = false, accentoAcceso = false, soloAscolto = false, conserva = false;
    bool silenzio = false;  ///< meant for the next note, whenever that comes
    bool modificata = false;
    bool attendeIncolla = false;  ///< between the two clicks of a paste

    bool passoAperto = false;
    int passo = 0;               ///< note under the step
    int parola = -1, volte = 1;  ///< rows of the tools' lists: durations; multiplier
    std::string attributoScelto = "n";

    VoceEditor& Voce() { return voci[attiva]; }

    void PremiFigura(int i) { figura = i; }
    void PremiAttributo(int i);
    void Premi(int tasto);
    void DoppioClick(int tasto);
    void InserisciNota();
    void InserisciPausa();
    void Taglia();
    void Incolla();
    /// A number typed into a box of the range, for a lower voice into its last one.
    void ScriviTratto(std::size_t voce, bool ultima, int numero);
    void ScegliVoce(std::size_t voce);
    void Passo(int verso);
    void Modifica();
    void InserisciDietro();
    void Cancella();
    void Azzera();

private:
    double Valore() const;
    double ConLegatura(double valore);
    void Accoda(const std::string& nota, double valore, const std::string& attributo);
    bool Concludi();
    void Anteprima();
    void Aggiorna();
    void Carica(const NotaEditor& nota);
    double ValoreScelto() const;
};

/// Does something, drawn at random, to the window and to the model.
void GestoACaso(BancoAMano& banco, ModelloEditor& modello);

/// The texts of a list of notes.
TestiVoce TestiDi(const NoteEditor& note);

}  // namespace corvana::prova
