#include "desktop/window_view.h"

#include <QApplication>
#include <QMenuBar>
#include <QPainterPath>
#include <QScreen>
#include <QShortcut>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/compositing.h"
#include "desktop/face_table.h"
#include "desktop/keyboard.h"
#include "desktop/menu_painter.h"
#include "desktop/mouse.h"
#include "desktop/painted_view.h"
#include "desktop/placement.h"
#include "desktop/scale.h"
#include "desktop/tab_order.h"
#include "desktop/theme.h"
#include "desktop/window_parts.h"

namespace corvana {

namespace {

/// Of a rounded window's corners, at the designed size.
constexpr double raggioFinestra = 11;

/// What is to be seen of a rounded window: its face without the corners.
QRegion Sagoma(const QWidget& faccia, double scala) {
    QPainterPath tondo;
    const double raggio = raggioFinestra * scala;
    tondo.addRoundedRect(QRectF(faccia.rect()), raggio, raggio);
    const QRegion sagoma(tondo.toFillPolygon().toPolygon());
    return sagoma.translated(faccia.mapTo(faccia.window(), QPoint()));
}

void ApriPrimoMenu(QMenuBar& sbarra) {
    const auto voci = sbarra.actions();
    const auto prima = std::find_if(voci.begin(), voci.end(), [](const QAction* voce) {
        return voce->isEnabled() && voce->isVisible();
    });
    if (prima != voci.end()) sbarra.setActiveAction(*prima);
}

}  // namespace

VistaFinestra::VistaFinestra(const MostraFinestra& comando, CodaEventi& coda, Tastiera& tastiera,
                             VistaFinestra* sotto)
    : identita_(comando.finestra),
      mittente_(coda, comando.finestra),
      tastiera_(tastiera),
      finestra_(std::make_unique<Guscio>(Casi())),
      posto_(*finestra_, mittente_) {
    CreaTutti(comando.controlli, tastiera);
    Intitola();
    if (viste_.front()->Stato().Ha("arrotondata")) Arrotonda();
    PonPuntatore();
    Ridimensiona();
    if (sotto) Lega(*sotto, comando.modale);
    const QPoint detto = viste_.front()->Stato().Twips().topLeft() / twipsPerPixel;
    posto_.Colloca(comando.collocata ? &detto : nullptr, sotto ? sotto->finestra_.get() : nullptr);
    Apri(comando.modale, sotto);
    tastiera.Segui(*finestra_->windowHandle(), mittente_);
}

VistaFinestra::~VistaFinestra() = default;

CasiFinestra VistaFinestra::Casi() {
    return {.chiusura = [this] { mittente_.Manda(0, Fatto::Chiudi); },
            .misura = [this] { Disponi(); },
            .posto = [this] { posto_.Guarda(); },
            .prossima = [this](bool avanti) { return Avanza(avanti); }};
}

bool VistaFinestra::Avanza(bool avanti) {
    Vista* fermata = ProssimaFermata(viste_, avanti);
    if (!fermata) return false;
    fermata->PrendiFuoco(avanti ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    tastiera_.Raggiungi(QApplication::focusWidget());
    return true;
}

void VistaFinestra::CreaTutti(const std::vector<CopiaControllo>& controlli, Tastiera& tastiera) {
    const std::set<int> menus = VociConVoci(controlli), facce = ConWidget(controlli);
    const Menu menu{*finestra_->menuBar(), [&tastiera] { tastiera.Perdi(); }};
    menu.sbarra.setVisible(menus.contains(0));
    auto* effeDieci = new QShortcut(Qt::Key_F10, finestra_.get());
    QObject::connect(effeDieci, &QShortcut::activated, &menu.sbarra,
                     [&sbarra = menu.sbarra] { ApriPrimoMenu(sbarra); });
    for (const CopiaControllo& copia : controlli)
        if (EDiMenu(copia))
            CreaVoce(copia, menu, menus.contains(copia.numero));
        else
            CreaControllo(copia, menu, facce.contains(copia.numero));
    nomi_ = std::make_unique<Nominatore>(viste_);
}

void VistaFinestra::CreaVoce(const CopiaControllo& copia, const Menu& menu, bool haVoci) {
    Vista* padre = Controllo(copia.padre);
    const bool sotto = padre && EDiMenu(padre->Origine());
    viste_.push_back(std::make_unique<VistaVoce>(
        copia, mittente_, menu, sotto ? static_cast<VistaVoce*>(padre) : nullptr, haVoci));
}

void VistaFinestra::CreaControllo(const CopiaControllo& copia, const Menu& menu, bool conFaccia) {
    Vista* padre = Controllo(copia.padre);
    QWidget* faccia = padre ? padre->Widget() : nullptr;
    QWidget& dove = faccia ? *faccia : *finestra_->centralWidget();
    Vista& vista = *viste_.emplace_back(CreaVista(copia, mittente_, dove));
    if (padre) padre->Adotta(vista);
    vista.PonApertura(menu.apertura);
    if (conFaccia) vista.DaiFaccia(dove);
}

void VistaFinestra::Intitola() {
    const Aspetto& aspetto = viste_.front()->Stato();
    finestra_->setWindowTitle(InQt(aspetto.Caption));
    finestra_->setObjectName(aspetto.nome);
    // Where the platform has it, whoever looks from outside tells the windows apart by this.
    finestra_->setWindowRole(aspetto.nome);
}

void VistaFinestra::Arrotonda() {
    finestra_->setWindowFlag(Qt::FramelessWindowHint);
    sagomata_ = !SchermoComposto();
    if (sagomata_) return;
    finestra_->setAttribute(Qt::WA_TranslucentBackground);
    finestra_->centralWidget()->setAutoFillBackground(false);
}

void VistaFinestra::Lega(const VistaFinestra& sotto, bool modale) {
    const bool nuda = finestra_->windowFlags() & Qt::FramelessWindowHint;
    // Of the dialog kind, since the toolkit tells the window manager of no other whom it belongs
    // to. It can't be minimised alone: the one beneath, which it blocks, would seem frozen.
    if (nuda)
        finestra_->setWindowFlag(Qt::Dialog);
    else
        finestra_->setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                  Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint |
                                  Qt::WindowCloseButtonHint);
    finestra_->setScreen(sotto.finestra_->screen());
    // The windows beneath are blocked, the help is not.
    if (modale) finestra_->setWindowModality(Qt::WindowModal);
}

Vista* VistaFinestra::Controllo(int numero) {
    const auto indice = static_cast<std::size_t>(numero);
    return numero >= 0 && indice < viste_.size() ? viste_[indice].get() : nullptr;
}

QSize VistaFinestra::Disegnata() const {
    const QRect twips = viste_.front()->Stato().Twips();
    return InPixel({0, 0, twips.width(), twips.height()}, 1).size();
}

int VistaFinestra::AltezzaSbarra() const {
    return finestra_->menuBar()->isHidden() ? 0 : MisuraVoceSbarra({}, 1).height();
}

void VistaFinestra::Ridimensiona() {
    const QSize intera = Disegnata() + QSize(0, AltezzaSbarra());
    const double minima = ScalaMinima(intera, finestra_->devicePixelRatioF());
    finestra_->setMinimumSize(intera * minima);
    finestra_->resize(ConLaSuaForma(intera, finestra_->screen()->availableSize()));
}

void VistaFinestra::PonScalaFaccia(double scala) {
    if (std::exchange(scala_, scala) == scala) return;
    PonScala(*finestra_, scala);
    QMenuBar& sbarra = *finestra_->menuBar();
    sbarra.setFont(Carattere({}, scala));
    sbarra.setFixedHeight(MisuraVoceSbarra({}, scala).height());
}

void VistaFinestra::Disponi() {
    if (viste_.empty()) return;
    const QSize disegnata = Disegnata();
    if (disegnata.isEmpty()) return;
    // Reckoned from the whole window: the bar grows with the face, and leaves it the rest.
    const QSize intera = finestra_->size();
    PonScalaFaccia(
        std::min(static_cast<double>(intera.width()) / disegnata.width(),
                 static_cast<double>(intera.height()) / (disegnata.height() + AltezzaSbarra())));
    const QSize spazio = finestra_->centralWidget()->size();
    for (std::size_t i = 1; i < viste_.size(); ++i)
        viste_[i]->Disponi(scala_);
    QSize faccia(qRound(disegnata.width() * scala_), qRound(disegnata.height() * scala_));
    QRect posto(QPoint(), faccia);
    posto.moveCenter(QRect(QPoint(), spazio).center());
    viste_.front()->Disponi(scala_);
    viste_.front()->Widget()->setGeometry(posto);
    if (sagomata_) finestra_->setMask(Sagoma(*viste_.front()->Widget(), scala_));
}

void VistaFinestra::Apri(bool modale, const VistaFinestra* sotto) {
    Disponi();
    // Nothing of the main window is marked before the logic has said what to begin with.
    if (!modale) finestra_->centralWidget()->setFocus();
    finestra_->winId();
    if (sotto) finestra_->windowHandle()->setTransientParent(sotto->finestra_->windowHandle());
    finestra_->Segui();
    topo_ = new TopoFinestra(*finestra_->windowHandle(), *viste_.front());
    finestra_->show();
    finestra_->raise();
    finestra_->activateWindow();
    if (modale) Avanza(true);
}

void VistaFinestra::Cambia(int numero, Nome nome, const Valore& valore) {
    Vista* vista = Controllo(numero);
    if (!vista) return;
    const bool misura = nome == &Valori::Width || nome == &Valori::Height;
    vista->Cambia(nome, valore);
    if (ENome(nome)) nomi_->Rinnova();
    if (numero != 0) return;
    if (nome == &Valori::Caption) finestra_->setWindowTitle(InQt(vista->Stato().Caption));
    if (nome == &Valori::MousePointer) PonPuntatore();
    if (nome == &Valori::Left || nome == &Valori::Top) posto_.Sposta(nome, std::get<int>(valore));
    if (misura) Ridimensiona();
    Disponi();
}

void VistaFinestra::PonPuntatore() {
    if (viste_.front()->Stato().MousePointer == puntatoreAttesa)
        finestra_->setCursor(Qt::WaitCursor);
    else
        finestra_->unsetCursor();
}

void VistaFinestra::DaiFuoco(int numero) {
    if (Vista* vista = Controllo(numero)) vista->PrendiFuoco(Qt::OtherFocusReason);
}

void VistaFinestra::ApriMenu(int numero) {
    Vista* menu = Controllo(numero);
    if (menu && EDiMenu(menu->Origine())) static_cast<VistaVoce*>(menu)->Apri(topo_->PostoMenu());
}

}  // namespace corvana
