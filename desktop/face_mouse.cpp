#include "desktop/face_mouse.h"

#include <QMouseEvent>
#include <utility>

#include "desktop/face.h"
#include "desktop/key_map.h"
#include "desktop/mouse_event.h"

namespace corvana {

bool TopoFaccia::Sente(const QEvent& evento) {
    // Of the other kinds it is no mouse event.
    const auto mouse = [&evento]() -> const QMouseEvent& {
        return static_cast<const QMouseEvent&>(evento);
    };
    switch (evento.type()) {
        case QEvent::MouseButtonPress: Premi(mouse()); return true;
        case QEvent::MouseButtonDblClick: Raddoppia(mouse()); return true;
        case QEvent::MouseButtonRelease: Lascia(mouse()); return true;
        case QEvent::MouseMove: Muovi(mouse()); return true;
        case QEvent::Leave: Esci(); return false;
        default: return false;
    }
}

VistaDipinta& TopoFaccia::Bersaglio(const QMouseEvent& mouse) const {
    return presa_ ? *presa_ : faccia_.Sotto(mouse.position());
}

void TopoFaccia::Premi(const QMouseEvent& mouse) {
    // Of the button before it may never have been told that it came up.
    if (mouse.buttons() == mouse.button()) presa_ = nullptr;
    presa_ = &Bersaglio(mouse);
    ultima_ = presa_;
    Manda(*presa_, Fatto::MouseDown, mouse);
    if (mouse.button() != Qt::LeftButton || !presa_->Azionabile() || !presa_->Abilitata()) return;
    premuta_ = dentro_ = true;
    presa_->Sporca();
}

void TopoFaccia::Raddoppia(const QMouseEvent& mouse) {
    VistaDipinta& vista = Bersaglio(mouse);
    // The second press of two that met different controls is a first one.
    if (&vista != ultima_) return Premi(mouse);
    presa_ = &vista;
    Manda(vista, Fatto::DblClick, mouse);
}

void TopoFaccia::Lascia(const QMouseEvent& mouse) {
    VistaDipinta& vista = Bersaglio(mouse);
    const bool premuta = premuta_ && mouse.button() == Qt::LeftButton;
    if (premuta || mouse.buttons() == Qt::NoButton) premuta_ = false;
    if (premuta) vista.Sporca();
    const bool dentro = vista.Area().contains(mouse.position().toPoint());
    if (premuta && dentro && vista.Cliccabile()) vista.Manda(Fatto::Click);
    if (mouse.buttons() == Qt::NoButton) Libera();
}

void TopoFaccia::Libera() {
    if (std::exchange(premuta_, false)) presa_->Sporca();
    presa_ = nullptr;
}

void TopoFaccia::Muovi(const QMouseEvent& mouse) {
    if (mouse.buttons() == Qt::NoButton) Libera();
    Prendi(&Bersaglio(mouse));
    const bool dentro = sopra_->Area().contains(mouse.position().toPoint());
    if (std::exchange(dentro_, dentro) != dentro && premuta_) sopra_->Sporca();
    if (sopra_->Abilitata()) sopra_->Sorvola(mouse.position() - QPointF(sopra_->Area().topLeft()));
    if (sopra_->Stato().Ascolta(ascoltaMossa))
        Manda(*sopra_, Fatto::MouseMove, mouse);
    else
        sopra_->MuoviFinestra();
}

void TopoFaccia::Esci() {
    Prendi(nullptr);
}

void TopoFaccia::Prendi(VistaDipinta* sopra) {
    VistaDipinta* prima = std::exchange(sopra_, sopra);
    if (prima == sopra) return;
    if (prima) {
        prima->Lasciata();
        if (prima->SenteIlPuntatore()) prima->Sporca();
        // What sank under the pointer comes up even when only deaf controls lie beside it.
        if (prima->Stato().Ascolta(ascoltaMossa)) prima->MuoviFinestra();
    }
    if (sopra && sopra->SenteIlPuntatore()) sopra->Sporca();
    if (sopra && sopra->Abilitata() && sopra->Invita())
        faccia_.setCursor(Qt::PointingHandCursor);
    else
        faccia_.unsetCursor();
}

void TopoFaccia::Controlla() {
    if (sopra_ && !sopra_->Usabile() && sopra_ != &faccia_.Terra()) Prendi(nullptr);
    if (presa_ && !presa_->Usabile()) premuta_ = false;
}

Tocco TopoFaccia::Tatto(const VistaDipinta& vista) const {
    Tocco tocco;
    tocco.sopra = sopra_ == &vista && (!presa_ || presa_ == sopra_);
    tocco.premuto = premuta_ && dentro_ && presa_ == &vista;
    return tocco;
}

void TopoFaccia::Manda(const VistaDipinta& vista, Fatto fatto, const QMouseEvent& mouse) const {
    Evento evento = EventoMouse(vista, fatto, mouse.position() - QPointF(vista.Posto().topLeft()));
    evento.codice = NumeroBottone(mouse.button());
    evento.shift = BitMaiuscole(mouse.modifiers());
    vista.Manda(std::move(evento));
}

}  // namespace corvana
