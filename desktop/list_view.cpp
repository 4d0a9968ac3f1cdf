#include "desktop/list_view.h"

#include <QMouseEvent>
#include <QSignalBlocker>

#include "desktop/multiple_list.h"
#include "desktop/row_painter.h"

namespace corvana {

namespace {

/// Hears of a double click before the one who tells the logic of it.
class Doppio final : public QObject {
public:
    explicit Doppio(ElencoMultiplo& lista) : QObject(&lista), lista_(lista) {
        lista.viewport()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* evento) override {
        if (evento->type() == QEvent::MouseButtonDblClick)
            lista_.Raddoppia(static_cast<QMouseEvent&>(*evento));
        return false;
    }

private:
    ElencoMultiplo& lista_;
};

}  // namespace

VistaLista::VistaLista(const CopiaControllo& copia, Mittente mittente, QWidget& padre)
    : Vista(copia, mittente), lista_(NuovoElenco(padre)) {
    PonWidget(*lista_, lista_->viewport());
    // Of the filters the last one comes first.
    if (auto* multiplo = dynamic_cast<ElencoMultiplo*>(lista_)) new Doppio(*multiplo);
    PonRighe();
}

Elenco* VistaLista::NuovoElenco(QWidget& padre) {
    const auto scelta = [this](int riga) { Scelta(riga); };
    if (Stato().MultiSelect) return new ElencoMultiplo(*this, scelta, padre);
    return new Elenco(*this, scelta, padre);
}

void VistaLista::Scelta(int riga) {
    PonDaUtente(&Valori::ListIndex, riga);
    Evento evento;
    evento.valore = riga;
    evento.scelte = lista_->Scelte();
    PonDaUtente(&Valori::Selected, evento.scelte);
    Manda(std::move(evento));
}

void VistaLista::PonRighe() {
    const QSignalBlocker silenzio(lista_);
    // Keeping the rows in place keeps the view where the user scrolled it to.
    const QStringList righe = InQt(Stato().List);
    while (lista_->count() > righe.size())
        delete lista_->takeItem(lista_->count() - 1);
    for (int i = 0; i < righe.size(); ++i) {
        if (i == lista_->count()) lista_->addItem(QString());
        lista_->item(i)->setText(righe[i]);
    }
    PonScelta();
}

void VistaLista::PonScelta() {
    lista_->PonScelta(Stato().ListIndex, Stato().Selected);
}

void VistaLista::Rinfresca(Nome nome) {
    if (nome == &Valori::List) PonRighe();
    if (nome == &Valori::ListIndex || nome == &Valori::Selected) PonScelta();
    Vista::Rinfresca(nome);
    lista_->viewport()->update();
}

void VistaLista::Riscala() {
    RiscalaRighe(*lista_, Stato(), Scala());
    lista_->Adatta();
}

}  // namespace corvana
