// The user's hand on the melody window: each gesture as the face reports it, delivered at once.
#pragma once

#include "melody/mel_reader.h"
#include "tests/composer/composer_rig.h"

namespace corvana::prova {

/// A message of a note, with the instant at which it was sent, in milliseconds from the gesture.
struct NotaSentita {
    int ms = 0;
    int canale = 0;
    int nota = 0;
    int velocita = 0;
    bool operator==(const NotaSentita&) const = default;
};
std::ostream& operator<<(std::ostream& dove, const NotaSentita& sentita);
using NoteSentite = std::vector<NotaSentita>;

using Fuochi = std::vector<std::string>;  ///< controls that were given the focus

struct BancoAMano : BancoComposer {
    using BancoComposer::BancoComposer;

    /// A click; on a list or a check box with what is chosen.
    void Tocca(const std::string& controllo, int valore = 0);
    /// Chooses the row of that text.
    void ScegliIn(const std::string& lista, const std::string& riga);
    /// Types into a box.
    void ScriviIn(const std::string& casella, const std::string& testo);
    /// Leaves a box for another control.
    void Esci(const std::string& casella);
    /// A key of the screen, pressed and let go.
    void PremiTasto(int nota);
    /// Pressed to be heard, and pressed again to be inserted.
    void DoppioClick(int nota);

    void Figura(int figura) { Tocca("cmdSimbNote" + std::to_string(figura)); }
    void Attributo(int attributo) { Tocca("cmdAttrNota" + std::to_string(attributo)); }
    void Nota() { Tocca("cmdInsNota"); }
    /// Inserts another note than the active one.
    void NotaDi(int nota);
    void Pausa() { Tocca("cmdInsPausa"); }
    void Passo(int verso) { Tocca("lblStep" + std::to_string(verso)); }

    TestiVoce Testi(std::size_t voce = soprano) const;
    bool Modificata() const { return finestra.stato.lblModificato.Visible(); }
    /// The lit attribute button, 6 for none.
    int AttributoAcceso() const;
    bool AccentoInVista() const { return finestra.inserimento.lblAt.Visible(); }
    bool AccentoAcceso() const { return finestra.inserimento.lblAt.BackStyle() == fondoOpaco; }
    /// What the gesture sent to the notes.
    NoteSentite Sentite(const std::function<void()>& gesto);
};

}  // namespace corvana::prova
