#include "desktop/box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "desktop/aspect.h"
#include "desktop/icon_painter.h"
#include "desktop/look.h"

namespace corvana {

namespace {

QDialog* CreaMessaggio(const ApriRiquadro& richiesta, QWidget* sopra) {
    const bool domanda = richiesta.genere == GenereRiquadro::Domanda;
    auto* box = new QMessageBox(sopra);
    box->setTextFormat(Qt::PlainText);
    box->setText(InQt(richiesta.testo));
    const QString segno = domanda ? QStringLiteral("domanda") : QStringLiteral("messaggio");
    constexpr int lato = 48;
    box->setIconPixmap(
        IconaDelProgramma(segno).pixmap(QSize(lato, lato), box->devicePixelRatioF()));
    box->setStandardButtons(domanda ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    if (domanda) box->setEscapeButton(QMessageBox::No);
    return box;
}

QDialog* CreaImmissione(const ApriRiquadro& richiesta, QWidget* sopra) {
    auto* box = new QInputDialog(sopra);
    box->setInputMode(QInputDialog::TextInput);
    box->setLabelText(InQt(richiesta.testo));
    box->setTextValue(InQt(richiesta.proposta));
    return box;
}

Risposta RispostaDiDialogo(const QDialog& box, int esito) {
    if (const auto* immissione = qobject_cast<const QInputDialog*>(&box))
        return {esito == QDialog::Accepted, immissione->textValue().toStdString()};
    return {esito == QMessageBox::Yes || esito == QMessageBox::Ok, {}};
}

}  // namespace

QDialog* ApriDialogo(const ApriRiquadro& richiesta, QWidget* sopra,
                     const std::function<void(Risposta)>& risposta) {
    const bool immissione = richiesta.genere == GenereRiquadro::Immissione;
    QDialog* box = immissione ? CreaImmissione(richiesta, sopra) : CreaMessaggio(richiesta, sopra);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowRole(QStringLiteral("riquadro"));
    box->setWindowTitle(richiesta.titolo.empty() ? QString::fromLatin1(nomeProgramma)
                                                 : InQt(richiesta.titolo));
    QObject::connect(box, &QDialog::finished, box,
                     [box, risposta](int esito) { risposta(RispostaDiDialogo(*box, esito)); });
    // It blocks the window that it belongs to and what that belongs to, but not the help.
    box->open();
    return box;
}

}  // namespace corvana
