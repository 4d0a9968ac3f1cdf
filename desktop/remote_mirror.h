// The logic's side of the desktop: what it is told becomes commands in the mailbox. The calls of
// `Specchio` and `Riquadri` are for the logic thread, the answers for the GUI thread. No Qt.
#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>

#include "desktop/mailbox.h"
#include "forms/boxes.h"
#include "forms/mirror.h"

namespace corvana {

/// What a box was answered: Yes or O K, and the text of an input box.
struct Risposta {
    bool si = false;
    std::string testo = {};
};

class SpecchioRemoto final : public Specchio, public Riquadri {
public:
    explicit SpecchioRemoto(Cassetta& cassetta) : cassetta_(cassetta) {}

    void Mostra(const Form& form, bool modale) override;
    void Cambiato(const Controllo& controllo, Nome nome, const Valore& valore) override;
    void Fuoco(const Controllo& controllo) override;
    void Trascina(const Form& form) override;
    void PopupMenu(const Controllo& menu) override;
    void Aiuto(const Form& form, const std::string& file) override;
    void CambiaLingua(const ParoleSchermo& parole, const std::string& aiuto) override;
    void Chiudi(const Form& form) override;

    void MsgBox(const std::string& testo) override;
    bool Domanda(const std::string& testo) override;
    std::optional<std::string> InputBox(const std::string& testo, const std::string& titolo,
                                        const std::string& proposta) override;

    /// The answer to the box of that number; ignored when nobody waits for it.
    void Rispondi(int numero, Risposta risposta);
    /// Answers No to the box that is open and to all that will be.
    void Rilascia();

private:
    Risposta Chiedi(ApriRiquadro riquadro);

    Cassetta& cassetta_;

    std::mutex blocco_;
    std::condition_variable arrivo_;
    int numero_ = 0;
    bool rilasciato_ = false;
    std::optional<Risposta> risposta_;
};

/// The window and all its controls, by number.
std::vector<CopiaControllo> Copia(const Form& form);

}  // namespace corvana
