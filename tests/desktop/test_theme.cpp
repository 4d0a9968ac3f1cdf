// On a dark desktop, where each colour that the program didn't choose would be dark.
#include <gtest/gtest.h>

#include <QApplication>
#include <QToolTip>

#include "desktop/look.h"
#include "desktop/theme.h"

namespace corvana::prova {
namespace {

class DesktopScuro : public testing::Test {
protected:
    DesktopScuro() {
        const QPalette scura(QColor(20, 20, 20), QColor(30, 30, 30));
        QApplication::setPalette(scura);
        for (const char* classe : {"QMenu", "QLabel", "QLineEdit", "QAbstractItemView"})
            QApplication::setPalette(scura, classe);
        QToolTip::setPalette(scura);
    }
    ~DesktopScuro() override { VestiProgramma(*qApp); }
};

/// The colours alone.
void AspettaUguali(const QPalette& una, const QPalette& altra) {
    for (int gruppo = 0; gruppo < QPalette::NColorGroups; ++gruppo)
        for (int ruolo = 0; ruolo < QPalette::NoRole; ++ruolo) {
            const auto g = static_cast<QPalette::ColorGroup>(gruppo);
            const auto r = static_cast<QPalette::ColorRole>(ruolo);
            EXPECT_EQ(una.color(g, r), altra.color(g, r)) << gruppo << ' ' << ruolo;
        }
}

TEST_F(DesktopScuro, LeavesThePaletteAsItIs) {
    const QPalette alBuio = TavolozzaDelProgramma();
    QApplication::setPalette(QPalette(QColor(240, 240, 240)));
    AspettaUguali(alBuio, TavolozzaDelProgramma());
}

TEST_F(DesktopScuro, ReachesNoKindOfWidget) {
    VestiProgramma(*qApp);
    for (const char* classe : {"QWidget", "QMenu", "QLabel", "QLineEdit", "QAbstractItemView"})
        AspettaUguali(QApplication::palette(classe), TavolozzaDelProgramma());
    AspettaUguali(QToolTip::palette(), TavolozzaDelProgramma());
}

}  // namespace
}  // namespace corvana::prova
