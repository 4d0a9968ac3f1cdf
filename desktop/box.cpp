#include "desktop/box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "desktop/aspect.h"
#include "desktop/icon_painter.h"
#include "desktop/look.h"
#include "desktop/scale.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

/// The toolkit would write on them what it, or the desktop that it runs on, was translated to.
void ScriviBottoni(const QMessageBox& riquadro, const ParoleSchermo& parole) {
    const std::pair<QMessageBox::StandardButton, const std::string&> scritte[] = {
        {QMessageBox::Yes, parole.parSi},
        {QMessageBox::No, parole.parNo},
        {QMessageBox::Ok, parole.parOk}};
    for (const auto& [quale, scritta] : scritte)
        if (QAbstractButton* bottone = riquadro.button(quale)) bottone->setText(InQt(scritta));
}

QDialog* CreaMessaggio(const ApriRiquadro& richiesta, const ParoleSchermo& parole, QWidget* sopra) {
    const bool domanda = richiesta.genere == GenereRiquadro::Domanda;
    auto* riquadro = new QMessageBox(sopra);
    riquadro->setTextFormat(Qt::PlainText);
    riquadro->setText(InQt(richiesta.testo));
    const QString segno = domanda ? QStringLiteral("domanda") : QStringLiteral("messaggio");
    const int lato = qRound(48 * ScalaDi(riquadro));
    riquadro->setIconPixmap(
        IconaDelProgramma(segno).pixmap(QSize(lato, lato), riquadro->devicePixelRatioF()));
    riquadro->setStandardButtons(domanda ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    if (domanda) {
        // Something may be lost by a Yes.
        riquadro->setDefaultButton(QMessageBox::No);
        riquadro->setEscapeButton(QMessageBox::No);
    }
    ScriviBottoni(*riquadro, parole);
    return riquadro;
}

QDialog* CreaImmissione(const ApriRiquadro& richiesta, const ParoleSchermo& parole,
                        QWidget* sopra) {
    auto* riquadro = new QInputDialog(sopra);
    riquadro->setInputMode(QInputDialog::TextInput);
    riquadro->setLabelText(InQt(richiesta.testo));
    riquadro->setTextValue(InQt(richiesta.proposta));
    riquadro->setOkButtonText(InQt(parole.parOk));
    riquadro->setCancelButtonText(InQt(parole.parAnnulla));
    return riquadro;
}

Risposta RispostaDi(const QDialog& riquadro, int esito) {
    if (const auto* immissione = qobject_cast<const QInputDialog*>(&riquadro))
        return {esito == QDialog::Accepted, immissione->textValue().toStdString()};
    return {esito == QMessageBox::Yes || esito == QMessageBox::Ok, {}};
}

}  // namespace

QDialog* MostraRiquadro(const ApriRiquadro& richiesta, const ParoleSchermo& parole, QWidget* sopra,
                        const std::function<void(Risposta)>& risposta) {
    const bool immissione = richiesta.genere == GenereRiquadro::Immissione;
    QDialog* riquadro = immissione ? CreaImmissione(richiesta, parole, sopra)
                                   : CreaMessaggio(richiesta, parole, sopra);
    riquadro->setFont(Carattere({}, ScalaDi(riquadro)));
    riquadro->setAttribute(Qt::WA_DeleteOnClose);
    riquadro->setWindowRole(QStringLiteral("riquadro"));
    riquadro->setWindowTitle(richiesta.titolo.empty() ? QString::fromLatin1(nomeProgramma)
                                                      : InQt(richiesta.titolo));
    QObject::connect(riquadro, &QDialog::finished, riquadro,
                     [riquadro, risposta](int esito) { risposta(RispostaDi(*riquadro, esito)); });
    // It blocks the window that it belongs to and what that belongs to, but not the help.
    riquadro->open();
    return riquadro;
}

}  // namespace corvana
