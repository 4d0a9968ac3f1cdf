#include <gtest/gtest.h>

#include <QLineEdit>
#include <QWidget>

#include "desktop/theme.h"
#include "desktop/widget_aspect.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

TEST(AspettoDeiWidget, IsFoundFromWhatLiesInItAndNotFromBeside) {
    QWidget finestra, suo(&finestra), dentro(&suo), altro(&finestra);
    const Aspetto aspetto;
    PonAspetto(suo, aspetto);
    EXPECT_EQ(AspettoDi(&suo), &aspetto);
    EXPECT_EQ(AspettoDi(&dentro), &aspetto);
    EXPECT_EQ(AspettoDi(&altro), nullptr);
    EXPECT_EQ(AspettoDi(&finestra), nullptr);
    EXPECT_EQ(AspettoDi(nullptr), nullptr);
}

TEST(AspettoDeiWidget, IsThatOfTheControl) {
    Palco palco;
    for (const char* nome : {"bottone", "casella", "lista", "combo", "barra", "spunta"}) {
        const Aspetto* aspetto = AspettoDi(&Trova(palco.scrivania, nome).Come<QWidget>());
        ASSERT_NE(aspetto, nullptr) << nome;
        EXPECT_EQ(aspetto->nome, nome);
    }
}

TEST(AspettoDeiWidget, OneOfTheToolkitsBoxesLooksLikeTheControls) {
    Palco palco;
    QLineEdit propria;
    propria.resize(100, 30);
    const QImage sua = Fotografa(Trova(palco.scrivania, "casella"));
    EXPECT_EQ(sua.pixelColor(50, 0), tinta::filo);
    EXPECT_EQ(Fotografa(propria).pixelColor(50, 0), tinta::filo);
    EXPECT_GE(propria.sizeHint().height(), 30);
}

}  // namespace
}  // namespace corvana::prova
