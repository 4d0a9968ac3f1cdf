#include "desktop/look.h"

#include <QApplication>
#include <QFontDatabase>
#include <QThreadPool>

#include "desktop/face_reader.h"
#include "desktop/icon_painter.h"
#include "desktop/style.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

/// The list of the system's fonts takes longer than a window's making, which needs none of it
/// before its first letter: it is read beside it.
void LeggiCaratteri() {
    QThreadPool::globalInstance()->start([] { QFontDatabase::families(); });
}

}  // namespace

void VestiProgramma(QApplication& qt) {
    LeggiCaratteri();
    QApplication::setApplicationName(QStringLiteral("corvana"));
    QApplication::setDesktopFileName(QStringLiteral("org.corvana.Corvana"));
    QApplication::setQuitOnLastWindowClosed(false);
    PreparaLettori();
    QApplication::setStyle(new Stile);
    QApplication::setPalette(TavolozzaDelProgramma());
    qt.setFont(Carattere({}, 1));
}

void PonIconaProgramma() {
    QApplication::setWindowIcon(IconaDelProgramma(QStringLiteral("corvana")));
}

}  // namespace corvana
