#include "desktop/style.h"

#include <QDialog>
#include <QFrame>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

#include "desktop/bar_painter.h"
#include "desktop/face_painter.h"
#include "desktop/field_painter.h"
#include "desktop/menu_painter.h"
#include "desktop/row_painter.h"
#include "desktop/scale.h"
#include "desktop/theme.h"
#include "desktop/widget_aspect.h"

namespace corvana {

namespace {

// In designed pixels.
constexpr double latoSpunta = 16;
constexpr double orloConsiglio = 6;  ///< around the text of a tool tip
// Of the toolkit's boxes.
constexpr double orloRiquadro = 16, traParti = 10;
constexpr double altezzaBottone = 32, larghezzaBottone = 84;
constexpr double altezzaCasella = 30, rientroCasella = 8;

Tocco ToccoDi(const QStyleOption& o) {
    const auto e = [&o](QStyle::StateFlag stato) { return o.state.testFlag(stato); };
    return {e(QStyle::State_MouseOver), e(QStyle::State_Sunken), e(QStyle::State_HasFocus),
            e(QStyle::State_Enabled)};
}

/// Designed pixels, or a negative number for what the style beneath decides.
double MisuraDisegnata(QStyle::PixelMetric quale) {
    switch (quale) {
        case QStyle::PM_SliderLength:
        case QStyle::PM_SliderThickness:
        case QStyle::PM_SliderControlThickness: return latoPollice;
        case QStyle::PM_ScrollBarExtent: return largoScorrimento;
        case QStyle::PM_IndicatorWidth:
        case QStyle::PM_IndicatorHeight: return latoSpunta;
        case QStyle::PM_CheckBoxLabelSpacing: return 7;
        case QStyle::PM_MenuHMargin:
        case QStyle::PM_MenuVMargin: return 4;
        case QStyle::PM_MenuPanelWidth: return 1;
        case QStyle::PM_MenuBarHMargin: return 4;
        case QStyle::PM_ToolTipLabelFrameWidth: return orloConsiglio;
        case QStyle::PM_MenuBarVMargin:
        case QStyle::PM_MenuBarPanelWidth:
        case QStyle::PM_MenuBarItemSpacing: return 0;
        default: return -1;
    }
}

/// How the parts of a box stand.
double MisuraRiquadro(QStyle::PixelMetric quale) {
    switch (quale) {
        case QStyle::PM_LayoutLeftMargin:
        case QStyle::PM_LayoutTopMargin:
        case QStyle::PM_LayoutRightMargin:
        case QStyle::PM_LayoutBottomMargin: return orloRiquadro;
        case QStyle::PM_LayoutHorizontalSpacing:
        case QStyle::PM_LayoutVerticalSpacing: return traParti;
        default: return MisuraDisegnata(quale);
    }
}

void DipingiSpunta(QPainter& p, const QStyleOption& o, double scala) {
    const Tocco tocco = ToccoDi(o);
    const bool segnata = o.state.testFlag(QStyle::State_On);
    const QColor forte = tocco.abilitato ? tinta::accento : tinta::spento;
    const double mezzo = 0.75 * scala;
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(segnata || tocco.sopra ? forte : tinta::filoForte, 2 * mezzo));
    p.setBrush(segnata ? forte : tocco.premuto ? tinta::accentoTenue : tinta::carta);
    p.drawRoundedRect(QRectF(o.rect).adjusted(mezzo, mezzo, -mezzo, -mezzo), 4 * scala, 4 * scala);
    if (segnata) DipingiSegnata(p, o.rect, tinta::suAccento, scala);
}

void DipingiTavola(QPainter& p, const QRect& area) {
    p.fillRect(area, tinta::filoForte);
    p.fillRect(area.adjusted(1, 1, -1, -1), tinta::carta);
}

void DipingiCornice(QPainter& p, const QStyleOptionFrame& o, const Aspetto& a, double scala) {
    const bool fuoco = o.state.testFlag(QStyle::State_HasFocus);
    if (o.frameShape == QFrame::Panel) DipingiElenco(p, o.rect, a, scala, fuoco);
    if (o.frameShape == QFrame::Box) DipingiTavola(p, o.rect);
}

/// The program's own controls; false for what looks the same in all boxes, or isn't theirs.
bool DipingiControllo(QStyle::ControlElement cosa, const QStyleOption& o, QPainter& p,
                      const Aspetto& a, double scala) {
    const auto* scelta = qstyleoption_cast<const QStyleOptionComboBox*>(&o);
    const auto* riga = qstyleoption_cast<const QStyleOptionViewItem*>(&o);
    const auto* cornice = qstyleoption_cast<const QStyleOptionFrame*>(&o);
    if (cosa == QStyle::CE_PushButton)
        DipingiBottone(p, o.rect, a, scala, ToccoDi(o));
    else if (cosa == QStyle::CE_ComboBoxLabel && scelta)
        DipingiTestoScelto(p, *scelta, a, scala);
    else if (cosa == QStyle::CE_ItemViewItem && riga)
        DipingiRiga(p, *riga, a, scala);
    else if (cosa == QStyle::CE_ShapedFrame && cornice)
        DipingiCornice(p, *cornice, a, scala);
    else
        return false;
    return true;
}

/// An open one has the focus, wherever that is among its rows; it never looks pressed.
Tocco ToccoScelta(const QStyleOptionComboBox& o) {
    Tocco tocco = ToccoDi(o);
    tocco.premuto = false;
    tocco.fuoco = tocco.fuoco || o.state.testFlag(QStyle::State_On);
    return tocco;
}

QRect ParteScorrimento(const QStyleOptionSlider& o, QStyle::SubControl parte, double scala) {
    const bool piana = o.orientation == Qt::Horizontal;
    const QRect pollice = PolliceScorrimento(o, scala);
    QRect resto = CorsaScorrimento(o, scala);
    switch (parte) {
        case QStyle::SC_ScrollBarSlider: return pollice;
        case QStyle::SC_ScrollBarGroove: return resto;
        case QStyle::SC_ScrollBarSubPage:
            piana ? resto.setRight(pollice.left() - 1) : resto.setBottom(pollice.top() - 1);
            return resto;
        case QStyle::SC_ScrollBarAddPage:
            piana ? resto.setLeft(pollice.right() + 1) : resto.setTop(pollice.bottom() + 1);
            return resto;
        default: return {};
    }
}

}  // namespace

Stile::Stile() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void Stile::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    // Over a window that its user has enlarged it has letters like those.
    if (widget->inherits("QTipLabel")) widget->setFont(Carattere({}, ScalaDi(widget)));
    // What lies beneath a scroll bar is seen beside its thumb.
    if (qobject_cast<QScrollBar*>(widget)) widget->setAttribute(Qt::WA_OpaquePaintEvent, false);
}

int Stile::pixelMetric(PixelMetric quale, const QStyleOption* o, const QWidget* widget) const {
    const bool riquadro = qobject_cast<const QDialog*>(widget);
    const double disegnata = riquadro ? MisuraRiquadro(quale) : MisuraDisegnata(quale);
    if (disegnata < 0) return QProxyStyle::pixelMetric(quale, o, widget);
    return static_cast<int>(std::lround(disegnata * ScalaDi(widget)));
}

int Stile::styleHint(StyleHint cosa, const QStyleOption* o, const QWidget* widget,
                     QStyleHintReturn* altro) const {
    if (cosa == SH_EtchDisabledText || cosa == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    // The toolkit's own menu, which would stand in the way of the window's.
    if (cosa == SH_ScrollBar_ContextMenu) return 0;
    // The rows drop down below the control, which goes on showing what is chosen.
    if (cosa == SH_ComboBox_Popup) return 0;
    if (cosa == SH_ComboBox_PopupFrameStyle) return QFrame::Box | QFrame::Plain;
    return QProxyStyle::styleHint(cosa, o, widget, altro);
}

QSize Stile::sizeFromContents(ContentsType cosa, const QStyleOption* o, const QSize& dentro,
                              const QWidget* widget) const {
    const auto* voce = qstyleoption_cast<const QStyleOptionMenuItem*>(o);
    if (cosa == CT_MenuItem && voce) return MisuraVoce(*voce, dentro, ScalaDi(widget));
    if (cosa == CT_MenuBarItem && voce) return MisuraVoceSbarra(dentro, ScalaDi(widget));
    const bool nostro = AspettoDi(widget);
    // How wide the rows of a list are is its own to choose.
    if (cosa == CT_ItemViewItem && nostro) return {0, AltezzaDellaRiga(ScalaDi(widget))};
    const QSize misura = QProxyStyle::sizeFromContents(cosa, o, dentro, widget);
    if (nostro) return misura;
    const auto almeno = [&](double larga, double alta) {
        return misura.expandedTo((QSizeF(larga, alta) * ScalaDi(widget)).toSize());
    };
    if (cosa == CT_PushButton) return almeno(larghezzaBottone, altezzaBottone);
    return cosa == CT_LineEdit ? almeno(0, altezzaCasella) : misura;
}

QRect Stile::subElementRect(SubElement parte, const QStyleOption* o, const QWidget* widget) const {
    if (parte == SE_CheckBoxFocusRect || parte == SE_CheckBoxClickRect) return o->rect;
    if (parte == SE_LineEditContents && !AspettoDi(widget)) {
        const int rientro = static_cast<int>(rientroCasella * ScalaDi(widget));
        return o->rect.adjusted(rientro, 0, -rientro, 0);
    }
    return QProxyStyle::subElementRect(parte, o, widget);
}

QRect Stile::subControlRect(ComplexControl cosa, const QStyleOptionComplex* o, SubControl parte,
                            const QWidget* widget) const {
    const auto* barra = qstyleoption_cast<const QStyleOptionSlider*>(o);
    if (!barra) return QProxyStyle::subControlRect(cosa, o, parte, widget);
    if (cosa == CC_ScrollBar) return ParteScorrimento(*barra, parte, ScalaDi(widget));
    if (cosa == CC_Slider && parte == SC_SliderHandle) return PolliceBarra(*barra, ScalaDi(widget));
    if (cosa == CC_Slider && parte == SC_SliderGroove) return barra->rect;
    return QProxyStyle::subControlRect(cosa, o, parte, widget);
}

QIcon Stile::standardIcon(StandardPixmap quale, const QStyleOption* o,
                          const QWidget* widget) const {
    // Each menu bar asks for it, and the toolkit's would load all its readers of pictures.
    if (quale == SP_ToolBarHorizontalExtensionButton) return IconaDelSeguito();
    return QProxyStyle::standardIcon(quale, o, widget);
}

void Stile::drawPrimitive(PrimitiveElement cosa, const QStyleOption* o, QPainter* p,
                          const QWidget* widget) const {
    const Aspetto* aspetto = AspettoDi(widget);
    switch (cosa) {
        case PE_PanelLineEdit:
            return DipingiCasella(*p, o->rect, aspetto ? *aspetto : Aspetto(), ScalaDi(widget),
                                  ToccoDi(*o).fuoco);
        case PE_PanelButtonCommand:
            return DipingiBottone(*p, o->rect, {}, ScalaDi(widget), ToccoDi(*o));
        case PE_IndicatorCheckBox: return DipingiSpunta(*p, *o, ScalaDi(widget));
        case PE_FrameFocusRect: return DipingiAnello(*p, o->rect, ScalaDi(widget));
        case PE_PanelTipLabel:
        case PE_PanelMenu: return DipingiTavola(*p, o->rect);
        case PE_FrameMenu: return;
        default: return QProxyStyle::drawPrimitive(cosa, o, p, widget);
    }
}

void Stile::drawControl(ControlElement cosa, const QStyleOption* o, QPainter* p,
                        const QWidget* widget) const {
    const auto* voce = qstyleoption_cast<const QStyleOptionMenuItem*>(o);
    const Aspetto* aspetto = AspettoDi(widget);
    if (aspetto && DipingiControllo(cosa, *o, *p, *aspetto, ScalaDi(widget))) return;
    if (cosa == CE_MenuItem && voce) return DipingiVoce(*p, *voce, ScalaDi(widget));
    if (cosa == CE_MenuBarItem && voce) return DipingiVoceSbarra(*p, *voce, ScalaDi(widget));
    if (cosa == CE_MenuBarEmptyArea) return p->fillRect(o->rect, tinta::finestra);
    QProxyStyle::drawControl(cosa, o, p, widget);
}

void Stile::drawComplexControl(ComplexControl cosa, const QStyleOptionComplex* o, QPainter* p,
                               const QWidget* widget) const {
    const auto* barra = qstyleoption_cast<const QStyleOptionSlider*>(o);
    const auto* scelta = qstyleoption_cast<const QStyleOptionComboBox*>(o);
    const Aspetto* aspetto = AspettoDi(widget);
    if (cosa == CC_ComboBox && scelta && aspetto)
        return DipingiScelta(*p, *scelta, *aspetto, ScalaDi(widget), ToccoScelta(*scelta));
    if (cosa == CC_Slider && barra) return DipingiBarra(*p, *barra, ScalaDi(widget));
    if (cosa == CC_ScrollBar && barra) return DipingiScorrimento(*p, *barra, ScalaDi(widget));
    QProxyStyle::drawComplexControl(cosa, o, p, widget);
}

}  // namespace corvana
