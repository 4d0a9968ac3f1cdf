#include "desktop/widget_aspect.h"

#include <QVariant>
#include <QWidget>

namespace corvana {

namespace {
constexpr const char* chiaveAspetto = "aspetto";
}  // namespace

void PonAspetto(QWidget& widget, const Aspetto& aspetto) {
    widget.setProperty(chiaveAspetto, QVariant::fromValue(&aspetto));
}

const Aspetto* AspettoDi(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        const QVariant aspetto = widget->property(chiaveAspetto);
        if (aspetto.isValid()) return aspetto.value<const Aspetto*>();
    }
    return nullptr;
}

}  // namespace corvana
