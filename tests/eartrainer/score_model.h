// What the score should be, from the outside: by what a learner clicks, by what can be seen and by
// what sounds. It is told of each click before it is made, and of what has sounded afterwards.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "eartrainer/page_flags.h"

namespace corvana::prova {

/// A note that was struck: MIDI number and velocity.
using Colpo = std::pair<int, int>;

class ModelloPunti {
public:
    explicit ModelloPunti(PaginaInto pagina);

    /// A click on a control that can be seen and used; a double click where there is no other.
    void Clic(const std::string& controllo);
    /// What was struck since then, and the prompt.
    void Dopo(const std::vector<Colpo>& colpi, const std::string& passo);

    /// A control on which a click is right; none where there is no question.
    std::optional<std::string> Giusto() const;
    /// A chord is asked for that didn't sound: its range was taken during the run.
    bool Muto() const { return Corre(PaginaInto::Accordi) && !tipo_; }
    /// The score as it should stand: right, wrong, percentage, and the mark that is to be seen.
    std::string Punti() const;

    PaginaInto Davanti() const { return davanti_; }

private:
    enum class Altezza { Pronta, SiImposta, Corre, Ferma };  ///< of the page of pitch

    void Entra(PaginaInto pagina);
    void Riattiva();
    void Azzera();
    bool Avvio(const std::string& controllo);
    bool Scelta(const std::string& controllo);
    bool Risposta(const std::string& controllo);
    void TastoSchermo(int tasto);
    void Conta(bool esatta);
    bool Chiede(PaginaInto pagina) const;
    bool& Corre(PaginaInto pagina) { return corre_.at(static_cast<std::size_t>(pagina)); }
    bool Corre(PaginaInto pagina) const { return corre_.at(static_cast<std::size_t>(pagina)); }

    PaginaInto davanti_;
    BandiereInto bandiere_{};
    BandiereInto corre_{};  ///< the Start button reads "Stop"
    int giuste_ = 0, sbagliate_ = 0;
    char segno_ = ' ';
    bool domanda_ = false;  ///< the last click asks or asks again

    Altezza altezza_ = Altezza::Pronta;
    int limiti_ = 0;  ///< of pitch: clicks on its range that were taken
    int primo_ = 0;
    bool mai_ = true;  ///< no note was ever asked for
    int nota_ = 0;     ///< the key asked for

    std::array<bool, 14> dimensioni_{};
    bool intervalli_ = false;  ///< a run with something to ask
    int semitoni_ = 0;

    std::array<bool, 4> tipi_{true, true, true, true};
    int limitiAccordo_ = 0;
    std::optional<int> tipo_;

    bool anglo_ = false, chiestoAnglo_ = false;
    int classe_ = 0;  ///< pitch class of the key that is named

    int cella_ = 0;
};

}  // namespace corvana::prova
