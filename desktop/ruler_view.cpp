#include "desktop/ruler_view.h"

#include <algorithm>
#include <utility>

#include "desktop/face_reader.h"
#include "desktop/key_map.h"
#include "desktop/ruler_painter.h"
#include "trainer/positions.h"

namespace corvana {

void VistaRegolo::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    p.save();
    const double scala = Scala() / twipsPerPixel;
    p.scale(scala, scala);
    DipingiRegolo(p, area.size() / scala, tocco.fuoco && !tocco.sopra ? scelta_ : sotto_);
    p.restore();
    if (tocco.fuoco) DipingiAnello(p, area, Scala());
}

void VistaRegolo::Sorvola(const QPointF& dove) {
    const Posizione* sotto =
        PosizioneDaRegolo(static_cast<int>(dove.y() * twipsPerPixel / Scala()));
    Indica(sotto ? sotto->numero : 0);
}

void VistaRegolo::Indica(int posizione) {
    if (std::exchange(sotto_, posizione) != posizione) Sporca();
}

bool VistaRegolo::PremiTasto(const QKeyEvent& tasto) {
    switch (tasto.key()) {
        case Qt::Key_Up: Sposta(1); return true;
        case Qt::Key_Down: Sposta(-1); return true;
        case Qt::Key_PageUp: Sposta(7); return true;
        case Qt::Key_PageDown: Sposta(-7); return true;
        default: break;
    }
    if (tasto.key() != Qt::Key_Space && !EInvio(tasto.key())) return false;
    if (!tasto.isAutoRepeat()) Segna();
    return true;
}

void VistaRegolo::Sposta(int passi) {
    const auto posizioni = Posizioni();
    const auto qui = std::find_if(posizioni.begin(), posizioni.end(),
                                  [this](const Posizione& p) { return p.numero == scelta_; });
    const auto indice = std::clamp<std::ptrdiff_t>(
        qui - posizioni.begin() + passi, 0, static_cast<std::ptrdiff_t>(posizioni.size()) - 1);
    scelta_ = posizioni[static_cast<std::size_t>(indice)].numero;
    Sporca();
    Di(QAccessible::NameChanged, *this);
}

QString VistaRegolo::Lettura() const {
    const QString nome = QLatin1Char('n') + QString::number(scelta_);
    for (const Vista* vicina : Padre()->Figlie())
        for (const Vista* nota : vicina->Figlie())
            if (nota->Stato().nome == nome && !nota->NomeDetto().isEmpty())
                return NomeDetto() + QLatin1String(": ") + nota->NomeDetto();
    return NomeDetto();
}

void VistaRegolo::Segna() const {
    const Posizione* scelta = CercaPosizione(scelta_);
    Evento evento;
    evento.fatto = Fatto::MouseDown;
    evento.codice = bottoneSinistro;
    evento.x = Stato().Width / 2;
    evento.y = (scelta->fasciaDa + scelta->fasciaA) / 2;
    Manda(evento);
    evento.fatto = Fatto::MouseUp;
    Manda(std::move(evento));
}

}  // namespace corvana
