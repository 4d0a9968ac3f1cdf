// One showing of a form as a real window: its menu bar, and its controls on a face that grows with
// the window. It belongs to the window beneath: the window manager keeps it in front of that one.
// GUI thread. Closing it only asks the logic, which closes it by destroying this; moving it is told
// to the logic.
#pragma once

#include <QMainWindow>
#include <map>
#include <memory>
#include <vector>

#include "desktop/menu_view.h"
#include "desktop/naming.h"
#include "desktop/view.h"

namespace corvana {

class Tastiera;

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
    void ChiediChiusura() const { mittente_.Manda(0, Fatto::Chiudi); }

private:
    friend class Guscio;
    void Crea(const CopiaControllo& copia, const Menu& menu, bool haVoci);
    void CreaTutti(const std::vector<CopiaControllo>& controlli, Tastiera& tastiera);
    /// Without the system's frame; the face paints its own round corners.
    void Arrotonda();
    void OrdinaFuoco();
    void PonPuntatore();
    void Lega(const VistaFinestra& sotto, bool modale);
    /// Says where the window is to appear.
    void Colloca(bool detto, const VistaFinestra* finestraSotto);
    void Apri(bool modale, const VistaFinestra* sotto);
    /// The face as large as the window lets it be, in its middle.
    void Disponi();
    void Ridimensiona();
    QSize Disegnata() const;
    /// The platform has put the window somewhere.
    void PrendiPosto();
    /// The logic wants it elsewhere.
    void Sposta(Nome nome, int twips);
    /// Of the menu bar at the designed size; 0 without one.
    int AltezzaSbarra() const;
    void PonScalaFaccia(double scala);

    const std::uint32_t identita_;
    Mittente mittente_;
    // The widgets must go first: some still tell their views that they lose the focus.
    std::vector<std::unique_ptr<Vista>> viste_;
    std::unique_ptr<Nominatore> nomi_;
    class VistaPentagramma* pentagramma_ = nullptr;
    std::unique_ptr<QMainWindow> finestra_;
    class TopoFinestra* topo_ = nullptr;
    double scala_ = 0;       ///< not laid out yet
    QPoint posto_;           ///< twips, as the logic knows it
    bool intera_ = false;    ///< it was made sure that it lies on the screen as a whole
    bool sagomata_ = false;  ///< its corners are cut off, since they can't be transparent
};

}  // namespace corvana
