// The melody window used by hand: its notes, its list of files, its boxes. GUI thread.
#pragma once

#include "melody/mel_reader.h"
#include "tests/composer/scribe.h"
#include "tests/desktop/hand_stage.h"

class QListWidget;

namespace corvana::prova {

class PalcoMelodia : public PalcoAMano {
public:
    /// With that window open, whose current folder is `cartella`; or not yet.
    explicit PalcoMelodia(const std::string& cartella,
                          const std::function<void(Macchina&)>& prepara = {}, bool aperta = true);

    /// From the main window.
    void ApriComposer();
    /// Of a white key the part that no black one covers.
    QPoint NelTasto(const std::string& nome);
    void Fai(const GestoMouse& gesto);
    /// In the window of the instruments, which a click on the picture opens.
    void ScegliStrumento(int programma);
    void Scrivi(std::size_t voce, const std::string& strumento, const TestiVoce& testi);
    void Scrivi(const LetturaMel& letta);

    /// Types into a box of the window, and leaves it.
    void ScriviIn(const std::string& casella, const std::string& testo);
    void SalvaConNome(const std::string& nome);
    /// From the list, by its button. It plays at once, and that play is waited for.
    void Apri(const std::string& nome);

    /// The rows of the window's list.
    std::vector<std::string> Righe();
    /// Clicks the row that reads so; throws when there is none.
    void ToccaRiga(const std::string& riga, Qt::KeyboardModifiers modificatori = {});
    void ToccaRigaDueVolte(const std::string& riga, const std::string& lista = "List1");

private:
    QListWidget& Elenco(const std::string& lista = "List1");
    QPoint PostoRiga(const std::string& riga, const std::string& lista = "List1");
};

}  // namespace corvana::prova
