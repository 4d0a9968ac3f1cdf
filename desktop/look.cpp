#include "desktop/look.h"

#include <fontconfig/fontconfig.h>

#include <QApplication>
#include <QFontDatabase>
#include <QThreadPool>
#include <QToolTip>

#include "desktop/face_reader.h"
#include "desktop/icon_painter.h"
#include "desktop/style.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

/// The toolkit's list of fonts is made beside the first window, which needs none of it before it
/// paints.
void PreparaCaratteri() {
    QThreadPool::globalInstance()->start([] { QFontDatabase::families(); });
}

}  // namespace

CaratteriDelSistema::CaratteriDelSistema()
    : letti_(std::async(std::launch::async, [] { FcInit(); })) {}

void VestiProgramma(QApplication& qt) {
    PreparaCaratteri();
    QApplication::setApplicationName(QStringLiteral("corvana"));
    QApplication::setDesktopFileName(QStringLiteral("org.corvana.Corvana"));
    QApplication::setQuitOnLastWindowClosed(false);
    PreparaLettori();
    QApplication::setStyle(new Stile);
    QApplication::setPalette(TavolozzaDelProgramma());
    QToolTip::setPalette(TavolozzaDelProgramma());
    qt.setFont(Carattere({}, 1));
}

void PonIconaProgramma() {
    QApplication::setWindowIcon(IconaDelProgramma(QStringLiteral("corvana")));
}

}  // namespace corvana
