#include "desktop/look.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>

#include "desktop/theme.h"

namespace corvana {

namespace {

class Stile final : public QProxyStyle {
public:
    Stile() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    int styleHint(StyleHint cosa, const QStyleOption* opzioni, const QWidget* widget,
                  QStyleHintReturn* altro) const override {
        if (cosa == SH_EtchDisabledText) return 0;
        return QProxyStyle::styleHint(cosa, opzioni, widget, altro);
    }
};

}  // namespace

void VestiProgramma(QApplication& qt) {
    QApplication::setApplicationName(QStringLiteral("corvana"));
    QApplication::setApplicationDisplayName(QStringLiteral("Corvana"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new Stile);
    QApplication::setPalette(TavolozzaDelProgramma());
    qt.setFont(Carattere({}, 1));
}

}  // namespace corvana
