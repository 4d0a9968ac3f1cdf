#include "desktop/menu_view.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace corvana {

VistaVoce::VistaVoce(const CopiaControllo& copia, Mittente mittente, const Menu& menu,
                     VistaVoce* padre, bool haVoci)
    : Vista(copia, mittente) {
    Crea(menu.sbarra, padre, haVoci);
    azione_->setObjectName(Stato().nome);
    for (const auto& nome : std::initializer_list<Nome>{&Valori::Caption, &Valori::Visible,
                                                        &Valori::Enabled, &Valori::Checked})
        Rinfresca(nome);
    if (menu_)
        QObject::connect(menu_, &QMenu::aboutToShow, menu_, [this, apertura = menu.apertura] {
            apertura();
            Manda(Fatto::Click);
        });
    else
        QObject::connect(azione_, &QAction::triggered, azione_, [this] {
            // It is the logic that checks; the click alone must not.
            Rinfresca(&Valori::Checked);
            Manda(Fatto::Click);
        });
}

void VistaVoce::Crea(QMenuBar& sbarra, VistaVoce* padre, bool haVoci) {
    QWidget* sopra = padre ? static_cast<QWidget*>(padre->menu_) : &sbarra;
    if (haVoci || Origine().tipo == Genere::MenuContestuale) {
        menu_ = new QMenu(sopra);
        // Its letters grow with the bar's.
        menu_->setAttribute(Qt::WA_WindowPropagation);
        azione_ = menu_->menuAction();
    } else {
        azione_ = new QAction(sopra);
        azione_->setSeparator(Stato().Caption.empty());
    }
    if (Origine().tipo != Genere::MenuContestuale) sopra->addAction(azione_);
}

void VistaVoce::Apri(QPoint dove) {
    if (menu_ && !menu_->isEmpty()) menu_->popup(dove);
}

void VistaVoce::Rinfresca(Nome nome) {
    if (nome == &Valori::Caption) azione_->setText(InQt(Stato().Caption));
    if (nome == &Valori::Visible) azione_->setVisible(Stato().Visible);
    if (nome == &Valori::Enabled) azione_->setEnabled(Stato().Enabled);
    if (nome != &Valori::Checked) return;
    // An entry that was never checked keeps no room for a mark.
    if (Stato().Checked) azione_->setCheckable(true);
    azione_->setChecked(Stato().Checked);
}

}  // namespace corvana
