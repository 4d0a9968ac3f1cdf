// A screen that nobody sees, with a window manager on it, and what a user's eye and hand do there.
// Started by the test, gone with the object. One thread.
#pragma once

#include <xcb/xcb.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/outputs/process.h"

namespace corvana::prova {

struct Rettangolo {
    int x = 0, y = 0, larghezza = 0, altezza = 0;
    bool Contiene(const Rettangolo& altro) const;
    bool Tocca(const Rettangolo& altro) const;
    bool operator==(const Rettangolo&) const = default;
};
std::ostream& operator<<(std::ostream& dove, const Rettangolo& rettangolo);

struct Punto {
    int x = 0, y = 0;
    bool operator==(const Punto&) const = default;
};

class Schermo {
public:
    static constexpr int larghezza = 1920, altezza = 1080;

    Schermo();
    Schermo(const Schermo&) = delete;
    Schermo& operator=(const Schermo&) = delete;
    ~Schermo();

    /// What DISPLAY must say.
    const std::string& Nome() const { return nome_; }
    /// The server is gone from one moment to the next.
    void Stacca() { server_->Segnala(9); }

    /// Waits until the condition holds, which is looked at whenever something happens on the
    /// screen; false when it doesn't within a generous time.
    bool Aspetta(const std::function<bool()>& condizione);

    /// The window of that role that is to be seen, or 0.
    xcb_window_t Cerca(const std::string& ruolo);
    xcb_window_t Attiva();
    xcb_window_t TransitoriaPer(xcb_window_t finestra);
    /// `stato` is one of the names of _NET_WM_STATE.
    bool HaStato(xcb_window_t finestra, const std::string& stato);
    bool SiVede(xcb_window_t finestra);
    /// `sopra` lies nearer to the eye.
    bool Sopra(xcb_window_t sopra, xcb_window_t sotto);
    /// Without the window manager's frame, and with it.
    Rettangolo Interno(xcb_window_t finestra);
    Rettangolo Cornice(xcb_window_t finestra);
    /// What the screen shows there.
    std::vector<std::uint8_t> Immagine(const Rettangolo& dove);

    void Clicca(Punto dove);
    /// One half of a click, with the left button, 1, or the right one, 3.
    void Premi(Punto dove, int bottone);
    void Lascia(Punto dove, int bottone);
    void Batti(const std::string& tasto);
    /// The same, held down for so long.
    void Tieni(const std::string& tasto, int millisecondi);
    void Sposta(xcb_window_t finestra, Punto dove);
    void Riduci(xcb_window_t finestra);
    void Riapri(xcb_window_t finestra);
    /// As by its close box. Returns when the window manager has passed it on.
    void Chiudi(xcb_window_t finestra);

private:
    using Connessione = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

    void AvviaServer();
    void Collega();
    void AvviaGestore();
    xcb_atom_t Atomo(const std::string& nome);
    std::vector<std::uint32_t> Valori(xcb_window_t finestra, const std::string& proprieta);
    std::string Testo(xcb_window_t finestra, const std::string& proprieta);
    std::vector<xcb_window_t> Finestre();
    void Chiedi(xcb_window_t finestra, const std::string& cosa, std::vector<std::uint32_t> dati);
    void Xdotool(std::vector<std::string> argomenti);

    CartellaPropria cartella_;
    std::unique_ptr<Processo> server_;
    std::string nome_;
    Connessione server_x_{nullptr, &xcb_disconnect};
    xcb_window_t radice_ = 0;
    std::unique_ptr<Processo> gestore_;
};

}  // namespace corvana::prova
