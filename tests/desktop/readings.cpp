#include "tests/desktop/readings.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QToolTip>

#include "desktop/menu_view.h"
#include "desktop/painted_view.h"

namespace corvana::prova {

namespace {

/// The tip of before would be there for a while yet.
void NascondiConsiglio() {
    for (QWidget* sopra : QApplication::topLevelWidgets())
        if (sopra->inherits("QTipLabel")) sopra->hide();
}

std::vector<QString> RigheDi(QWidget& widget) {
    std::vector<QString> righe;
    if (const auto* lista = qobject_cast<QListWidget*>(&widget))
        for (int i = 0; i < lista->count(); ++i)
            righe.push_back(lista->item(i)->text());
    if (const auto* combo = qobject_cast<QComboBox*>(&widget))
        for (int i = 0; i < combo->count(); ++i)
            righe.push_back(combo->itemText(i));
    return righe;
}

QString ScrittaDi(QWidget& widget, const Aspetto& stato) {
    if (const auto* bottone = qobject_cast<QAbstractButton*>(&widget)) return bottone->text();
    if (const auto* casella = qobject_cast<QLineEdit*>(&widget)) return casella->text();
    return InQt(stato.Caption);
}

void LeggiWidget(QWidget& widget, const Aspetto& stato, Letture& letture) {
    const std::string nome = stato.nome.toStdString();
    letture[nome] = ScrittaDi(widget, stato).toStdString();
    int riga = 0;
    for (const QString& testo : RigheDi(widget))
        letture[nome + '[' + std::to_string(riga++) + ']'] = testo.toStdString();
}

void LeggiControllo(Vista& vista, Letture& letture) {
    const Cosa cosa(vista);
    if (!cosa.isVisible()) return;
    const std::string nome = cosa.objectName().toStdString();
    if (QWidget* widget = vista.Widget()) {
        LeggiWidget(*widget, vista.Stato(), letture);
    } else {
        const Aspetto& stato = vista.Stato();
        letture[nome] = InQt(stato.Text.empty() ? stato.Caption : stato.Text).toStdString();
    }
    if (const std::string consiglio = ConsiglioMostrato(cosa); !consiglio.empty())
        letture[nome + ".tip"] = consiglio;
}

}  // namespace

std::string ConsiglioMostrato(const Cosa& cosa) {
    NascondiConsiglio();
    QWidget* sotto = &cosa.Suolo();
    if (auto* scorre = qobject_cast<QAbstractScrollArea*>(sotto)) sotto = scorre->viewport();
    const QPoint dove = sotto->mapFrom(sotto->window(), cosa.NellaFinestra(cosa.rect().center()));
    QHelpEvent chiede(QEvent::ToolTip, dove, sotto->mapToGlobal(dove));
    QApplication::sendEvent(sotto, &chiede);
    return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
}

Letture LeggiFinestra(Scrivania& scrivania) {
    VistaFinestra& davanti = *scrivania.Davanti();
    QMainWindow& vera = davanti.Finestra();
    Letture letture;
    for (int numero = 1; Vista* vista = davanti.Controllo(numero); ++numero) {
        if (dynamic_cast<VistaVoce*>(vista))
            letture[vista->Stato().nome.toStdString()] =
                TrovaVoce(scrivania, vista->Stato().nome).text().toStdString();
        else if (vista->Widget() || dynamic_cast<VistaDipinta*>(vista))
            LeggiControllo(*vista, letture);
    }
    letture[vera.objectName().toStdString()] = vera.windowTitle().toStdString();
    NascondiConsiglio();
    return letture;
}

}  // namespace corvana::prova
