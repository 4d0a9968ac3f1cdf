#include "desktop/combo_view.h"

#include <QComboBox>
#include <QListView>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/row_painter.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

constexpr int righeVisibili = 12;  ///< of the open list; the others are scrolled to

/// The rows that drop down.
class Tendina final : public QListView {
public:
    explicit Tendina(QWidget& padre) : QListView(&padre) {
        setUniformItemSizes(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollMode(ScrollPerItem);
    }
    /// Letters are shortcuts of the program as long as the list is closed.
    void keyboardSearch(const QString& lettere) override {
        if (isVisible()) QListView::keyboardSearch(lettere);
    }
};

class Scelta final : public QComboBox {
public:
    Scelta(const Vista& vista, QWidget& padre) : QComboBox(&padre), vista_(vista) {
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::StrongFocus);
        setMaxVisibleItems(righeVisibili);
        setView(new Tendina(*this));
    }
    void showPopup() override {
        if (count() == 0) return;
        if (apertura_) apertura_();
        view()->setMinimumWidth(LarghezzaDelleRighe());
        QComboBox::showPopup();
    }
    void PonApertura(std::function<void()> apertura) { apertura_ = std::move(apertura); }

protected:
    void wheelEvent(QWheelEvent* rotella) override {
        // The wheel chooses only where the user is: elsewhere it would change what it passes over.
        if (hasFocus())
            QComboBox::wheelEvent(rotella);
        else
            rotella->ignore();
    }

private:
    int LarghezzaDelleRighe() const {
        int larghezza = 0;
        for (int i = 0; i < count(); ++i)
            larghezza = std::max(larghezza, fontMetrics().horizontalAdvance(itemText(i)));
        if (count() > righeVisibili) larghezza += view()->verticalScrollBar()->sizeHint().width();
        return larghezza + MargineDellaRiga(vista_.Scala());
    }

    const Vista& vista_;
    std::function<void()> apertura_;
};

}  // namespace

VistaCombo::VistaCombo(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente), combo_(new Scelta(*this, padre)) {
    PonWidget(*combo_);
    PonRighe();
    QObject::connect(combo_, &QComboBox::activated, combo_, [this](int riga) {
        PonDaUtente(&Valori::ListIndex, riga);
        Manda(Fatto::Click, riga);
    });
}

void VistaCombo::PonApertura(const std::function<void()>& apertura) {
    static_cast<Scelta*>(combo_)->PonApertura(apertura);
}

void VistaCombo::PonRighe() {
    const QStringList righe = InQt(Stato().List);
    // Keeping the rows in place keeps an open list open where it is.
    while (combo_->count() > righe.size())
        combo_->removeItem(combo_->count() - 1);
    for (int i = 0; i < righe.size(); ++i) {
        if (i == combo_->count()) combo_->addItem(QString());
        combo_->setItemText(i, righe[i]);
    }
    PonScelta();
}

void VistaCombo::PonScelta() {
    combo_->setCurrentIndex(Stato().ListIndex);
}

void VistaCombo::Rinfresca(Nome nome) {
    if (nome == &Valori::List) PonRighe();
    if (nome == &Valori::ListIndex) PonScelta();
    Vista::Rinfresca(nome);
}

void VistaCombo::Riscala() {
    combo_->setFont(Carattere(Stato().stile, Scala()));
    RiscalaRighe(*combo_->view(), Stato(), Scala());
}

}  // namespace corvana
