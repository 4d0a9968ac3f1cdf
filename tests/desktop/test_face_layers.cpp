// What of a face is painted again. The order of its layers is the faces' own test.
#include <gtest/gtest.h>

#include <QPainter>
#include <set>

#include "desktop/face.h"
#include "desktop/face_layers.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

std::set<QString> Dipinte(VistaDipinta& terra, const QRegion& scoperto) {
    std::set<QString> nomi;
    QImage foto(terra.Area().size(), QImage::Format_ARGB32_Premultiplied);
    QPainter p(&foto);
    DipingiStrati(p, terra, scoperto, [&](const VistaDipinta& vista) {
        nomi.insert(vista.Stato().nome);
        return Tocco();
    });
    return nomi;
}

QRect AreaDi(Palco& palco, const char* nome) {
    return dynamic_cast<VistaDipinta&>(Trova(palco.scrivania, nome).LaVista()).Area();
}

TEST(Strati, WhatLiesBetweenTwoChangedPlacesIsntPaintedAgain) {
    Palco palco([](FormDiProva& form) {
        int sinistra = 0;
        for (Controllo* c :
             std::initializer_list<Controllo*>{&form.scritta, &form.toccabile, &form.icona}) {
            c->Top = 0;
            c->Left = sinistra;
            sinistra += c->Width + 150;
        }
    });
    const Cosa scritta = Trova(palco.scrivania, "scritta");
    VistaDipinta& terra = dynamic_cast<const Faccia&>(scritta.Suolo()).Terra();
    const QRegion due = QRegion(AreaDi(palco, "scritta")) | AreaDi(palco, "icona");
    EXPECT_TRUE(due.boundingRect().contains(AreaDi(palco, "toccabile").center()));
    const std::set<QString> dipinte = Dipinte(terra, due);
    EXPECT_TRUE(dipinte.contains("scritta"));
    EXPECT_TRUE(dipinte.contains("icona"));
    EXPECT_FALSE(dipinte.contains("toccabile"));
    EXPECT_TRUE(Dipinte(terra, due.boundingRect()).contains("toccabile"));
}

}  // namespace
}  // namespace corvana::prova
