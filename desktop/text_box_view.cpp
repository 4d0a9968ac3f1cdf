#include "desktop/text_box_view.h"

#include <QAccessible>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <algorithm>

#include "desktop/theme.h"

namespace corvana {

namespace {

// In designed pixels.
constexpr double margineTesto = 6;    ///< beside the text
constexpr double letteraMinima = 11;  ///< smaller ones look crowded

class Scrittura final : public QLineEdit {
public:
    Scrittura(const Vista& vista, QWidget& padre) : QLineEdit(&padre), vista_(vista) {
        setFrame(false);
    }

protected:
    void keyPressEvent(QKeyEvent* tasto) override {
        const QString battuto = tasto->text();
        if (battuto.isEmpty() || !battuto[0].isPrint()) return QLineEdit::keyPressEvent(tasto);
        const QString preso = Filtrato(battuto, vista_.Origine().filtro);
        if (preso == battuto) return QLineEdit::keyPressEvent(tasto);
        if (!preso.isEmpty() && !isReadOnly()) Inserisci(preso);
    }
    void inputMethodEvent(QInputMethodEvent* evento) override {
        QInputMethodEvent filtrato(evento->preeditString(), evento->attributes());
        filtrato.setCommitString(Filtrato(evento->commitString(), vista_.Origine().filtro),
                                 evento->replacementStart(), evento->replacementLength());
        QLineEdit::inputMethodEvent(&filtrato);
    }

private:
    /// As if that had been typed.
    void Inserisci(const QString& testo) {
        QKeyEvent altro(QEvent::KeyPress, 0, Qt::NoModifier, testo);
        QLineEdit::keyPressEvent(&altro);
    }

    const Vista& vista_;
};

/// Makes the letters small enough for the text, down to `minima`. A text is about as long as its
/// letters are large: to try each size would load a font for each.
void Rimpicciolisci(QFont& font, const QString& testo, double spazio, int minima) {
    const auto lungo = [&] { return QFontMetricsF(font).horizontalAdvance(testo); };
    for (double eccede = lungo() / spazio; eccede > 1 && font.pixelSize() > minima;
         eccede = lungo() / spazio) {
        const int prossima = static_cast<int>(font.pixelSize() / eccede);
        font.setPixelSize(std::max(minima, std::min(font.pixelSize() - 1, prossima)));
    }
}

}  // namespace

QString Filtrato(const QString& battuto, char32_t (*filtro)(char32_t)) {
    if (!filtro) return battuto;
    std::u32string presi;
    for (const char32_t carattere : battuto.toStdU32String())
        if (const char32_t preso = filtro(carattere)) presi.push_back(preso);
    return QString::fromStdU32String(presi);
}

VistaCasella::VistaCasella(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente), casella_(new Scrittura(*this, padre)) {
    PonWidget(*casella_);
    if (copia.lunghezzaMassima > 0) casella_->setMaxLength(copia.lunghezzaMassima);
    PonBlocco();
    casella_->setAlignment(Allineamento(Stato().stile) & Qt::AlignHorizontal_Mask);
    PonColori();
    PonTesto();
    Collega();
}

void VistaCasella::Collega() {
    QObject::connect(casella_, &QLineEdit::textEdited, casella_, [this](const QString& testo) {
        Evento evento;
        evento.fatto = Fatto::Change;
        evento.testo = testo.toStdString();
        Manda(std::move(evento));
    });
    QObject::connect(casella_, &QLineEdit::returnPressed, casella_,
                     [this] { Manda(Fatto::Invio); });
    QObject::connect(qApp, &QApplication::focusChanged, casella_,
                     [this](QWidget*, QWidget* preso) { SegnaFuoco(preso); });
}

void VistaCasella::SegnaFuoco(const QWidget* preso) {
    if (preso == casella_) scrive_ = true;
    if (!scrive_ || !preso || preso == casella_) return;
    if (preso->window() != casella_->window() || qobject_cast<const QMenuBar*>(preso)) return;
    scrive_ = false;
    Manda(Fatto::LostFocus);
}

void VistaCasella::PonTesto() {
    // Setting the same text again would move the cursor to its end.
    const QString testo = InQt(Stato().Text);
    if (casella_->text() != testo) casella_->setText(testo);
    Riscala();
}

void VistaCasella::PonBlocco() {
    casella_->setReadOnly(Stato().Locked);
    // What can only be read is no stop of the Tab key.
    casella_->setFocusPolicy(Stato().Locked ? Qt::NoFocus : Qt::StrongFocus);
}

bool VistaCasella::Fermata() const {
    return Stato().Locked ? Stato().Ha("letto") && QAccessible::isActive() : Vista::Fermata();
}

QString VistaCasella::Lettura() const {
    return NomeDetto() + QLatin1Char(' ') + InQt(Stato().Text);
}

void VistaCasella::PonColori() {
    QPalette colori = casella_->palette();
    colori.setColor(QPalette::Text, InQt(Stato().ForeColor, tinta::inchiostro));
    casella_->setPalette(colori);
}

void VistaCasella::Rinfresca(Nome nome) {
    if (nome == &Valori::Text) {
        PonTesto();
        if (Stato().Ha("annunciato")) Annuncia(*this);
    }
    if (nome == &Valori::Locked) PonBlocco();
    if (nome == &Valori::ForeColor) PonColori();
    Vista::Rinfresca(nome);
}

void VistaCasella::Riscala() {
    QFont font = Carattere(Stato().stile, Scala());
    // A box that is only read never scrolls: what is too long for it gets smaller letters.
    if (Stato().Locked)
        Rimpicciolisci(font, InQt(Stato().Text).trimmed(),
                       std::max(1.0, casella_->width() - 2 * (margineTesto + 4) * Scala()),
                       std::max(PixelMinimi(), static_cast<int>(letteraMinima * Scala())));
    casella_->setFont(font);
    const int margine = static_cast<int>(margineTesto * Scala());
    casella_->setTextMargins(margine, 0, margine, 0);
}

}  // namespace corvana
