#include "desktop/scale.h"

#include <QVariant>
#include <QWidget>

namespace corvana {

namespace {
constexpr const char* chiave = "scala";
}  // namespace

void PonScala(QWidget& finestra, double scala) {
    finestra.setProperty(chiave, scala);
}

double ScalaDi(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        const QVariant scala = widget->property(chiave);
        if (scala.isValid()) return scala.toDouble();
    }
    return 1;
}

}  // namespace corvana
