#include "desktop/look.h"

#include <QApplication>
#include <QFrame>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include "desktop/face_painter.h"
#include "desktop/icon_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

class Stile final : public QProxyStyle {
public:
    Stile() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    void drawPrimitive(PrimitiveElement cosa, const QStyleOption* o, QPainter* p,
                       const QWidget* widget) const override {
        if (cosa != PE_PanelButtonCommand) return QProxyStyle::drawPrimitive(cosa, o, p, widget);
        const auto e = [o](StateFlag stato) { return o->state.testFlag(stato); };
        DipingiBottone(*p, QRectF(o->rect), {}, 1,
                       {e(State_MouseOver), e(State_Sunken), e(State_HasFocus), e(State_Enabled)});
    }
    int styleHint(StyleHint cosa, const QStyleOption* opzioni, const QWidget* widget,
                  QStyleHintReturn* altro) const override {
        if (cosa == SH_EtchDisabledText || cosa == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        // The rows drop down below the control, which goes on showing what is chosen.
        if (cosa == SH_ComboBox_Popup) return 0;
        if (cosa == SH_ComboBox_PopupFrameStyle) return QFrame::Box | QFrame::Plain;
        return QProxyStyle::styleHint(cosa, opzioni, widget, altro);
    }
};

}  // namespace

void VestiProgramma(QApplication& qt) {
    QApplication::setApplicationName(QStringLiteral("corvana"));
    QApplication::setDesktopFileName(QStringLiteral("org.corvana.Corvana"));
    QApplication::setWindowIcon(IconaDelProgramma(QStringLiteral("corvana")));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new Stile);
    QApplication::setPalette(TavolozzaDelProgramma());
    qt.setFont(Carattere({}, 1));
}

}  // namespace corvana
