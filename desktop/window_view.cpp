#include "desktop/window_view.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QPainterPath>
#include <QScreen>
#include <QShortcut>
#include <QWindow>
#include <algorithm>
#include <set>
#include <utility>

#include "desktop/combo_view.h"
#include "desktop/compositing.h"
#include "desktop/keyboard.h"
#include "desktop/menu_painter.h"
#include "desktop/mouse.h"
#include "desktop/painted_view.h"
#include "desktop/placement.h"
#include "desktop/scale.h"
#include "desktop/staff_view.h"
#include "desktop/theme.h"

namespace corvana {

namespace {
/// Below this share of the designed size the letters couldn't be read.
constexpr double scalaMinima = 0.8;
/// Of a rounded window's corners, at the designed size.
constexpr double raggioFinestra = 11;
/// False on Wayland, where a window neither knows nor chooses where it stands.
bool DiceIPosti() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

/// What windows may cover of the screen that has the point, or else of the window's own.
QRect LiberoPresso(QPoint punto, const QWidget& finestra) {
    const QScreen* schermo = QGuiApplication::screenAt(punto);
    return (schermo ? schermo : finestra.screen())->availableGeometry();
}

/// Moves the window, and makes it smaller, so that it lies on the screen with its whole frame.
void Contieni(QWidget& finestra) {
    const QRect cornice = finestra.windowHandle()->frameGeometry();
    const QRect giusta = DentroSchermo(cornice, finestra.screen()->availableGeometry());
    if (giusta == cornice || finestra.isMaximized() || finestra.isFullScreen()) return;
    finestra.resize(finestra.size() + giusta.size() - cornice.size());
    finestra.windowHandle()->setFramePosition(giusta.topLeft());
}

/// What is to be seen of a rounded window: its face without the corners.
QRegion Sagoma(const QWidget& faccia, double scala) {
    QPainterPath tondo;
    const double raggio = raggioFinestra * scala;
    tondo.addRoundedRect(QRectF(faccia.rect()), raggio, raggio);
    const QRegion sagoma(tondo.toFillPolygon().toPolygon());
    return sagoma.translated(faccia.mapTo(faccia.window(), QPoint()));
}

}  // namespace

/// The window itself: what the system does to it goes to its view.
class Guscio final : public QMainWindow {
public:
    explicit Guscio(VistaFinestra& vista) : vista_(vista) {}

protected:
    void closeEvent(QCloseEvent* evento) override {
        vista_.ChiediChiusura();
        evento->ignore();
    }
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        switch (evento->type()) {
            case QEvent::Resize:
                if (oggetto == centralWidget()) vista_.Disponi();
                break;
            // The frame may become known after the last move: looked at again at the next occasion.
            case QEvent::Move:
            case QEvent::Expose:
            case QEvent::FocusIn:
                if (oggetto == windowHandle()) vista_.PrendiPosto();
                break;
            default: break;
        }
        return QMainWindow::eventFilter(oggetto, evento);
    }

private:
    VistaFinestra& vista_;
};

namespace {

void ApriPrimoMenu(QMenuBar& sbarra) {
    const auto voci = sbarra.actions();
    const auto prima = std::find_if(voci.begin(), voci.end(), [](const QAction* voce) {
        return voce->isEnabled() && voce->isVisible();
    });
    if (prima != voci.end()) sbarra.setActiveAction(*prima);
}

std::set<int> Padri(const std::vector<CopiaControllo>& controlli) {
    std::set<int> padri;
    for (const CopiaControllo& c : controlli)
        if (c.tipo == Genere::VoceMenu) padri.insert(c.padre);
    return padri;
}

QWidget& CentroDi(QMainWindow& finestra) {
    auto* centro = new QWidget(&finestra);
    centro->setAutoFillBackground(true);
    finestra.setCentralWidget(centro);
    centro->installEventFilter(&finestra);
    return *centro;
}

}  // namespace

VistaFinestra::VistaFinestra(const MostraFinestra& comando, CodaEventi& coda, Tastiera& tastiera,
                             VistaFinestra* sotto)
    : identita_(comando.finestra),
      mittente_(coda, comando.finestra),
      finestra_(std::make_unique<Guscio>(*this)) {
    CentroDi(*finestra_);
    CreaTutti(comando.controlli, tastiera);
    OrdinaFuoco();
    Ridimensiona();
    if (sotto) Lega(*sotto, comando.modale);
    Colloca(comando.collocata, sotto);
    Apri(comando.modale, sotto);
    tastiera.Segui(*finestra_->windowHandle(), mittente_);
}

VistaFinestra::~VistaFinestra() = default;

void VistaFinestra::CreaTutti(const std::vector<CopiaControllo>& controlli, Tastiera& tastiera) {
    const std::set<int> padri = Padri(controlli);
    const bool conMenu = padri.contains(0);
    const Menu menu{*finestra_->menuBar(), [&tastiera] { tastiera.Perdi(); }};
    menu.sbarra.setVisible(conMenu);
    auto* effeDieci = new QShortcut(Qt::Key_F10, finestra_.get());
    QObject::connect(effeDieci, &QShortcut::activated, &menu.sbarra,
                     [&sbarra = menu.sbarra] { ApriPrimoMenu(sbarra); });
    for (const CopiaControllo& copia : controlli)
        Crea(copia, menu, padri.contains(copia.numero));
    nomi_ = std::make_unique<Nominatore>(viste_);
    if (viste_.front()->Stato().Ha("arrotondata")) Arrotonda();
    finestra_->setWindowTitle(viste_.front()->Stato().caption);
    finestra_->setObjectName(viste_.front()->Stato().nome);
    // Where the platform has it, whoever looks from outside tells the windows apart by this.
    finestra_->setWindowRole(viste_.front()->Stato().nome);
    PonPuntatore();
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

void VistaFinestra::Colloca(bool detto, const VistaFinestra* finestraSotto) {
    const bool nuda = finestra_->windowFlags() & Qt::FramelessWindowHint;
    // Its own frame isn't there yet; that of the window beneath is the window manager's, too.
    const QWindow* vicina = finestraSotto ? finestraSotto->finestra_->windowHandle() : nullptr;
    const QMargins cornice = vicina && !nuda ? vicina->frameMargins() : QMargins();
    const QSize misura = finestra_->size().grownBy(cornice);
    const QPoint posto = viste_.front()->Stato().Twips().topLeft() / twipsPerPixel;
    const QRect sotto = vicina ? vicina->frameGeometry() : QRect();
    const QRect libero = LiberoPresso(detto ? posto : sotto.center(), *finestra_);
    if (detto)
        finestra_->move(DentroSchermo({posto, misura}, libero).topLeft());
    else if (vicina)
        finestra_->move(AlCentro(misura, sotto, libero).topLeft());
}

void VistaFinestra::Crea(const CopiaControllo& copia, const Menu& menu, bool haVoci) {
    Vista* padre = Controllo(copia.padre);
    if (copia.tipo == Genere::VoceMenu || copia.tipo == Genere::MenuContestuale) {
        viste_.push_back(std::make_unique<VistaVoce>(copia, mittente_, menu,
                                                     dynamic_cast<VistaVoce*>(padre), haVoci));
        return;
    }
    QWidget* dove = padre ? padre->Contenitore() : nullptr;
    viste_.push_back(
        CreaVista(copia, mittente_, dove ? *dove : *finestra_->centralWidget(), pentagramma_));
    if (auto* staff = dynamic_cast<VistaPentagramma*>(viste_.back().get())) pentagramma_ = staff;
    if (auto* combo = dynamic_cast<VistaCombo*>(viste_.back().get()))
        combo->PonApertura(menu.apertura);
}

Vista* VistaFinestra::Controllo(int numero) {
    const auto indice = static_cast<std::size_t>(numero);
    return numero >= 0 && indice < viste_.size() ? viste_[indice].get() : nullptr;
}

void VistaFinestra::OrdinaFuoco() {
    QWidget* prima = nullptr;
    for (const auto& vista : viste_) {
        QWidget* widget = vista->Widget();
        if (!widget || widget->focusPolicy() == Qt::NoFocus) continue;
        if (prima) QWidget::setTabOrder(prima, widget);
        prima = widget;
    }
}

QSize VistaFinestra::Disegnata() const {
    const QRect twips = viste_.front()->Stato().Twips();
    return InPixel({0, 0, twips.width(), twips.height()}, 1).size();
}

int VistaFinestra::AltezzaSbarra() const {
    return finestra_->menuBar()->isHidden() ? 0 : MisuraVoceSbarra({}, 1).height();
}

void VistaFinestra::Ridimensiona() {
    finestra_->centralWidget()->setMinimumSize(Disegnata() * scalaMinima);
    const QSize schermo = finestra_->screen()->availableSize();
    finestra_->resize((Disegnata() + QSize(0, AltezzaSbarra())).boundedTo(schermo));
}

void VistaFinestra::PonScalaFaccia(double scala) {
    if (std::exchange(scala_, scala) == scala) return;
    PonScala(*finestra_, scala);
    QMenuBar& sbarra = *finestra_->menuBar();
    sbarra.setFont(Carattere({}, scala));
    sbarra.setFixedHeight(MisuraVoceSbarra({}, scala).height());
}

void VistaFinestra::Disponi() {
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
    finestra_->windowHandle()->installEventFilter(finestra_.get());
    topo_ = new TopoFinestra(*finestra_->windowHandle(), *viste_.front());
    finestra_->show();
    finestra_->raise();
    finestra_->activateWindow();
}

void VistaFinestra::PrendiPosto() {
    const QWindow& vera = *finestra_->windowHandle();
    // Where the platform doesn't tell places, it finds good ones itself.
    if (!vera.isExposed() || !DiceIPosti()) return;
    if (!std::exchange(intera_, true)) Contieni(*finestra_);
    const QPoint posto = vera.framePosition() * twipsPerPixel;
    if (posto == std::exchange(posto_, posto)) return;
    Evento evento;
    evento.fatto = Fatto::Spostata;
    evento.x = posto.x();
    evento.y = posto.y();
    mittente_.Manda(std::move(evento));
}

void VistaFinestra::Sposta(Nome nome, int twips) {
    nome == Nome::Left ? posto_.setX(twips) : posto_.setY(twips);
    const QRect cornice(posto_ / twipsPerPixel, finestra_->frameGeometry().size());
    finestra_->windowHandle()->setFramePosition(
        DentroSchermo(cornice, LiberoPresso(cornice.topLeft(), *finestra_)).topLeft());
}

void VistaFinestra::Cambia(int numero, Nome nome, const Valore& valore) {
    Vista* vista = Controllo(numero);
    if (!vista) return;
    const bool misura = nome == Nome::Width || nome == Nome::Height;
    vista->Cambia(nome, valore);
    if (nome == Nome::Caption || nome == Nome::ToolTipText) nomi_->Rinnova();
    if (numero != 0) return;
    if (nome == Nome::Caption) finestra_->setWindowTitle(vista->Stato().caption);
    if (nome == Nome::MousePointer) PonPuntatore();
    if (nome == Nome::Left || nome == Nome::Top) Sposta(nome, std::get<int>(valore));
    if (misura) Ridimensiona();
    Disponi();
}

void VistaFinestra::PonPuntatore() {
    if (viste_.front()->Stato().puntatore == puntatoreAttesa)
        finestra_->setCursor(Qt::WaitCursor);
    else
        finestra_->unsetCursor();
}

void VistaFinestra::DaiFuoco(int numero) {
    Vista* vista = Controllo(numero);
    if (vista && vista->Widget()) vista->Widget()->setFocus(Qt::OtherFocusReason);
}

void VistaFinestra::ApriMenu(int numero) {
    if (auto* menu = dynamic_cast<VistaVoce*>(Controllo(numero))) menu->Apri(topo_->PostoMenu());
}

}  // namespace corvana
