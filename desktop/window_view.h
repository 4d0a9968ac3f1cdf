// One showing of a form as a real window: its menu bar, and its controls on a face that grows with
// the window. It belongs to the window beneath: the window manager keeps it in front of that one.
// GUI thread. Closing it only asks the logic, which closes it by destroying this.
#pragma once

#include <memory>
#include <vector>

#include "desktop/menu_view.h"
#include "desktop/naming.h"
#include "desktop/view.h"
#include "desktop/window_place.h"
#include "desktop/window_shell.h"

namespace corvana {

class Tastiera;
class TopoFinestra;

class VistaFinestra {
public:
    /// `sotto` is the window beneath, or null.
    VistaFinestra(const MostraFinestra& comando, CodaEventi& coda, Tastiera& tastiera,
                  VistaFinestra* sotto);
    VistaFinestra(const VistaFinestra&) = delete;
    VistaFinestra& operator=(const VistaFinestra&) = delete;
    ~VistaFinestra();

    std::uint32_t Identita() const { return identita_; }
    QMainWindow& Finestra() { return *finestra_; }
    /// The face of the control of that number, or null.
    Vista* Controllo(int numero);

    void Cambia(int numero, Nome nome, const Valore& valore);
    void DaiFuoco(int numero);
    /// Opens the context menu of that number.
    void ApriMenu(int numero);

private:
    CasiFinestra Casi();
    void CreaTutti(const std::vector<CopiaControllo>& controlli, Tastiera& tastiera);
    void CreaVoce(const CopiaControllo& copia, const Menu& menu, bool haVoci);
    void CreaControllo(const CopiaControllo& copia, const Menu& menu, bool conFaccia);
    void Intitola();
    /// Without the system's frame; the face paints its own round corners.
    void Arrotonda();
    void PonPuntatore();
    void Lega(const VistaFinestra& sotto, bool modale);
    void Apri(bool modale, const VistaFinestra* sotto);
    /// The face as large as the window lets it be, in its middle.
    void Disponi();
    void Ridimensiona();
    QSize Disegnata() const;
    /// The Tab key's next stop takes the focus; false where there is none.
    bool Avanza(bool avanti);
    /// Of the menu bar at the designed size; 0 without one.
    int AltezzaSbarra() const;
    void PonScalaFaccia(double scala);

    const std::uint32_t identita_;
    Mittente mittente_;
    Tastiera& tastiera_;
    // The widgets must go first: some still tell their views that they lose the focus.
    std::vector<std::unique_ptr<Vista>> viste_;
    std::unique_ptr<Nominatore> nomi_;
    std::unique_ptr<Guscio> finestra_;
    PostoFinestra posto_;
    TopoFinestra* topo_ = nullptr;  ///< the native window's
    double scala_ = 0;              ///< not laid out yet
    bool sagomata_ = false;         ///< its corners are cut off, since they can't be transparent
};

}  // namespace corvana
