#include "desktop/keyboard_view.h"

#include <algorithm>
#include <utility>

#include "desktop/face_reader.h"
#include "desktop/key_map.h"
#include "desktop/keys_painter.h"
#include "piano/keyboard_geometry.h"

namespace corvana {

namespace {

constexpr int tastiOttava = 12;

QRect SullaFigura(const Rettangolo& posto, const Vista& figura) {
    const Rettangolo suo = SuFigura(posto, figura.Stato().Width);
    return InPixel({suo.left, suo.top, suo.width, suo.height}, figura.Scala());
}

/// Keys grow with their picture, and so does all that is painted of them.
double ScalaTasti(const Vista& figura) {
    return figura.Scala() * figura.Stato().Width / postoTastiera.width;
}

}  // namespace

VistaTasto::VistaTasto(const CopiaControllo& copia, Mittente mittente)
    : VistaDipinta(copia, mittente), tasto_(Stato().nome.mid(2).toInt()) {
    Nomina();
}

void VistaTasto::Nomina() {
    // As is usual, the octave that middle C begins is the fourth.
    constexpr int primaOttava = 2;
    PonNomeDetto(SenzaAccesso(InQt(Stato().Caption)) + QLatin1Char(' ') +
                 QString::number(primaOttava + tasto_ / tastiOttava));
}

QRect VistaTasto::Area() const {
    return SullaFigura(TastoIntero(tasto_), *Sotto()).translated(Sotto()->Area().topLeft());
}

QRect VistaTasto::Portata() const {
    return TastoNero(tasto_) ? OmbraTasto(Area(), ScalaTasti(*Sotto())) : Area();
}

int VistaTasto::Strato() const {
    return TastoNero(tasto_) ? 1 : 0;
}

void VistaTasto::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    const AspettoTasto aspetto{Acceso(), InQt(Stato().BackColor, Qt::transparent), tocco.fuoco};
    if (TastoNero(tasto_))
        DipingiTastoNero(p, area, aspetto, ScalaTasti(*Sotto()));
    else
        DipingiTastoBianco(p, area, aspetto, ScalaTasti(*Sotto()));
}

void VistaTasto::Rinfresca(Nome nome) {
    if (nome == &Valori::Caption) Nomina();
    VistaDipinta::Rinfresca(nome);
}

void VistaTastiera::Dipingi(QPainter& p, const QRectF&, const Tocco&) {
    const Rettangolo primo = TastoIntero(0), ultimo = TastoIntero(tastiTastiera - 1);
    const int destra = ultimo.left + ultimo.width;
    const QRect tasti =
        SullaFigura({primo.left, primo.top, destra - primo.left, primo.height}, *this);
    DipingiLetto(p, QRectF(tasti), ScalaTasti(*this));
}

std::vector<VistaDipinta*> VistaTastiera::Tasti() const {
    std::vector<VistaDipinta*> tasti;
    for (Vista* figlia : Figlie())
        if (figlia->Stato().Ha("tasto")) tasti.push_back(static_cast<VistaDipinta*>(figlia));
    return tasti;
}

VistaDipinta* VistaTastiera::Scelto() const {
    const auto tasti = Tasti();
    const auto scelto = static_cast<std::size_t>(scelto_);
    return scelto < tasti.size() ? tasti[scelto] : nullptr;
}

const VistaDipinta& VistaTastiera::DovEIlFuoco() const {
    if (const VistaDipinta* scelto = Scelto()) return *scelto;
    return *this;
}

void VistaTastiera::Scegli(int tasto) {
    Su(false);
    DovEIlFuoco().Sporca();
    scelto_ = std::clamp(tasto, 0, tastiTastiera - 1);
    DovEIlFuoco().Sporca();
    DiFuoco(*this);
}

bool VistaTastiera::PremiTasto(const QKeyEvent& tasto) {
    switch (tasto.key()) {
        case Qt::Key_Left: Scegli(scelto_ - 1); return true;
        case Qt::Key_Right: Scegli(scelto_ + 1); return true;
        case Qt::Key_PageDown: Scegli(scelto_ - tastiOttava); return true;
        case Qt::Key_PageUp: Scegli(scelto_ + tastiOttava); return true;
        case Qt::Key_Home: Scegli(0); return true;
        case Qt::Key_End: Scegli(tastiTastiera - 1); return true;
        default: break;
    }
    const bool invio = EInvio(tasto.key());
    if (tasto.key() != Qt::Key_Space && !invio) return false;
    if (tasto.isAutoRepeat()) return true;
    if (invio && tasto.modifiers().testFlag(Qt::ShiftModifier)) {
        for (const Vista* figlia : Figlie())
            if (figlia->Stato().Ha("docentrale")) figlia->Manda(Fatto::DblClick);
        return true;
    }
    Giu();
    if (invio) Su(true);
    if (invio && tasto.modifiers().testFlag(Qt::ControlModifier)) Raddoppia();
    return true;
}

bool VistaTastiera::LasciaTasto(const QKeyEvent& tasto) {
    if (tasto.key() != Qt::Key_Space || !giu_) return false;
    if (!tasto.isAutoRepeat()) Su(true);
    return true;
}

void VistaTastiera::Rinuncia() {
    Su(false);
}

void VistaTastiera::Giu() {
    Su(false);
    giu_ = Scelto();
    if (giu_) giu_->MandaBottone(Fatto::MouseDown);
}

void VistaTastiera::Su(bool clicca) {
    VistaDipinta* tasto = std::exchange(giu_, nullptr);
    if (!tasto) return;
    tasto->MandaBottone(Fatto::MouseUp);
    if (clicca) tasto->Manda(Fatto::Click);
}

void VistaTastiera::Raddoppia() const {
    const VistaDipinta* tasto = Scelto();
    if (tasto && tasto->Stato().Ascolta(ascoltaDoppio)) tasto->Manda(Fatto::DblClick);
}

void VistaBarretta::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    if (Stato().BackStyle == fondoOpaco)
        DipingiBarretta(p, area, InQt(Stato().BackColor, Qt::transparent), ScalaTasti(*Sotto()));
}

void VistaDoCentrale::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    DipingiDoCentrale(p, area, InQt(Stato().BackColor, Qt::transparent), ScalaTasti(*Sotto()));
}

}  // namespace corvana
