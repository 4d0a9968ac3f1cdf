// What shows the forms to somebody: the desktop on a screen, nobody in most tests.
// Every call comes on the logic thread and returns at once.
#pragma once

#include <string>

#include "forms/value.h"
#include "forms/words.h"

namespace corvana {

class Form;
struct Controllo;

class Specchio {
public:
    Specchio() = default;
    Specchio(const Specchio&) = delete;
    Specchio& operator=(const Specchio&) = delete;
    virtual ~Specchio() = default;

    /// The form is to be shown in front, with all its controls as they stand.
    virtual void Mostra(const Form& form, bool modale) = 0;
    virtual void Cambiato(const Controllo& controllo, Nome nome, const Valore& valore) = 0;
    virtual void Fuoco(const Controllo& controllo) = 0;
    /// The pointer, whose left button is down on the form, drags the window from now on.
    virtual void Trascina(const Form& form) { static_cast<void>(form); }
    /// The menu is to be opened where the user asked for it.
    virtual void PopupMenu(const Controllo& menu) { static_cast<void>(menu); }
    /// The help is to be shown, from `file`, at the page for the form's context. The user goes on
    /// working beside it.
    virtual void Aiuto(const Form& form, const std::string& file) {
        static_cast<void>(form);
        static_cast<void>(file);
    }
    /// The language is chosen: from now on the desktop uses these words, and the help's pages in
    /// `aiuto`, those that the user is reading included.
    virtual void CambiaLingua(const ParoleSchermo& parole, const std::string& aiuto) {
        static_cast<void>(parole);
        static_cast<void>(aiuto);
    }
    /// The form, which still has its identity, is gone; it may be destroyed when the call returns.
    virtual void Chiudi(const Form& form) = 0;
};

}  // namespace corvana
