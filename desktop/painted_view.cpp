#include "desktop/painted_view.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QPaintEvent>

#include "desktop/icon_painter.h"
#include "desktop/key_map.h"
#include "desktop/letter_painter.h"
#include "desktop/ornament_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

/// A widget that its view paints.
template <class Base>
class Dipinto : public Base {
public:
    Dipinto(VistaDipinta& vista, QWidget& padre) : Base(&padre), vista_(vista) {
        this->setAttribute(Qt::WA_Hover);
    }

protected:
    void paintEvent(QPaintEvent* evento) override {
        QPainter p(this);
        p.setClipRect(evento->rect());
        vista_.Dipingi(p, QRectF(this->rect()), Tatto());
    }
    virtual Tocco Tatto() const {
        return {this->underMouse(), false, this->hasFocus(), this->isEnabled()};
    }

private:
    VistaDipinta& vista_;
};

class Premibile final : public Dipinto<QAbstractButton> {
public:
    Premibile(VistaDipinta& vista, QWidget& padre) : Dipinto(vista, padre) {
        // Like any picture or label it leaves the focus where it is when the mouse clicks it.
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
    }

protected:
    Tocco Tatto() const override {
        Tocco tocco = Dipinto::Tatto();
        tocco.premuto = isDown();
        return tocco;
    }
    void keyPressEvent(QKeyEvent* tasto) override {
        if (!EInvio(tasto->key())) return QAbstractButton::keyPressEvent(tasto);
        if (!tasto->isAutoRepeat()) click();
    }
};

/// The question mark stays on its button when it is taken away to show that the help is on.
Aspetto Acceso(Aspetto aspetto) {
    if (!aspetto.Ha("aiuto") || !aspetto.caption.isEmpty()) return aspetto;
    aspetto.caption = QStringLiteral("?");
    aspetto.fondo = InColore(tinta::accento);
    aspetto.penna = Rgb(255, 255, 255);
    return aspetto;
}

}  // namespace

VistaDipinta::VistaDipinta(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente) {
    PonWidget(CreaWidget(padre));
    VistaDipinta::Rinfresca(Nome::Caption);
    if (copia.tipo == Genere::Casella) Widget()->setAccessibleName(Stato().text);
}

bool VistaDipinta::Cliccabile() const {
    // One that lies behind another has what is clicked before it.
    return Stato().Ascolta(ascoltaClick) && Origine().tipo != Genere::Casella &&
           !Stato().Ha("dietro");
}

QWidget& VistaDipinta::CreaWidget(QWidget& padre) {
    if (Cliccabile()) {
        auto* bottone = new Premibile(*this, padre);
        QObject::connect(bottone, &QAbstractButton::clicked, bottone,
                         [this] { Manda(Fatto::Click); });
        return *bottone;
    }
    if (Origine().tipo == Genere::Etichetta) return *new Dipinto<QLabel>(*this, padre);
    return *new Dipinto<QWidget>(*this, padre);
}

void VistaDipinta::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    if (Stato().Ha("lettera")) return DipingiLettera(p, area, Stato(), Scala(), tocco);
    if (Stato().Ha("pulsante")) return DipingiBottone(p, area, Stato(), Scala(), tocco);
    const Aspetto aspetto = Acceso(Stato());
    DipingiFondo(p, area, aspetto, Scala(), tocco);
    if (Stato().Ha("ornamento")) DipingiOrnamento(p, area, Scala());
    const bool finestra = Origine().tipo == Genere::Finestra;
    if (!finestra) DipingiTesto(p, area, aspetto, Scala(), tocco.abilitato);
    if (tocco.fuoco) DipingiAnello(p, area, Scala());
}

void VistaDipinta::Rinfresca(Nome nome) {
    // The text stands in the widget for a screen reader; it is the painter that shows it.
    if (nome == Nome::Caption)
        if (auto* etichetta = qobject_cast<QLabel*>(Widget()))
            etichetta->setText(SenzaAccesso(Stato().caption));
    Vista::Rinfresca(nome);
}

void VistaSpiegazione::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    Aspetto aspetto = Stato();
    aspetto.caption = aspetto.text.replace(QLatin1Char('&'), QLatin1String("&&"));
    DipingiFondo(p, area, aspetto, Scala(), tocco);
    DipingiTesto(p, area, aspetto, Scala(), tocco.abilitato);
}

void VistaSpiegazione::Rinfresca(Nome nome) {
    if (nome == Nome::Text) Widget()->setAccessibleName(Stato().text);
    VistaDipinta::Rinfresca(nome);
}

void VistaColonne::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    const QStringList parole = SenzaAccesso(Stato().caption).split(QLatin1Char('-'));
    const double passo = area.width() / static_cast<double>(parole.size());
    for (qsizetype i = 0; i < parole.size(); ++i) {
        Aspetto una = Stato();
        una.caption = parole[i].trimmed();
        una.stile << QStringLiteral("centro") << QStringLiteral("mezzo");
        const QRectF colonna(area.x() + static_cast<double>(i) * passo, area.y(), passo,
                             area.height());
        if (Stato().Ha("tasti")) DipingiTasto(p, colonna, Scala());
        DipingiTesto(p, colonna, una, Scala(), tocco.abilitato);
    }
}

void VistaIcona::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    DipingiFondo(p, area, Stato(), Scala(), tocco);
    DipingiIcona(p, area, Stato().stile, tocco);
    if (tocco.fuoco) DipingiAnello(p, area, Scala());
}

}  // namespace corvana
