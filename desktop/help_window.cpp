#include "desktop/help_window.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QScreen>
#include <QShortcut>
#include <QTextBrowser>
#include <QToolBar>
#include <QWindow>
#include <algorithm>

#include "desktop/aspect.h"
#include "desktop/look.h"
#include "desktop/placement.h"
#include "desktop/theme.h"

namespace corvana {

namespace {

/// Pictures are taken at twice the size that they are shown at.
constexpr double puntiPerPixel = 2;
constexpr int margine = 30;
constexpr int latoScorrimento = 12;
constexpr QSize misura(740, 680);
/// Narrower the lines would be too short to read well.
constexpr int larghezzaMinima = 420;
constexpr QLatin1String primaPagina("index.html");

/// The pages and their pictures, these as sharp as the screen can show them.
class Pagine final : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int genere, const QUrl& nome) override {
        if (genere != QTextDocument::ImageResource) return QTextBrowser::loadResource(genere, nome);
        const QUrl posto = nome.isRelative() ? source().resolved(nome) : nome;
        // Of indexed colours the scaling would make a coarse pattern.
        const QImage figura = QImage(posto.toLocalFile()).convertToFormat(QImage::Format_RGB32);
        if (figura.isNull()) return {};
        const double scala = devicePixelRatioF();
        // In a window that had little room beside the program's a picture is as broad as the text.
        const double riga = (window()->width() - 2 * margine - 2 * latoScorrimento) * scala;
        const QSizeF sua = QSizeF(figura.size()) * (scala / puntiPerPixel);
        const double quanto = std::min(1.0, riga / sua.width());
        QImage ridotta =
            figura.scaled((sua * quanto).toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        ridotta.setDevicePixelRatio(scala);
        return ridotta;
    }
};

}  // namespace

FinestraAiuto::FinestraAiuto(const ParoleSchermo& parole, std::function<void()> chiusa)
    : parole_(parole), chiusa_(std::move(chiusa)), testo_(new Pagine(this)) {
    setObjectName(QStringLiteral("FinestraAiuto"));
    setWindowRole(objectName());
    DisponiFoglio();
    CreaSbarra();
    connect(testo_, &QTextBrowser::sourceChanged, this, [this] { MettiTitolo(); });
    auto* esc = new QShortcut(Qt::Key_Escape, this);
    connect(esc, &QShortcut::activated, this, &QWidget::close);
    resize(misura);
}

void FinestraAiuto::DisponiFoglio() {
    testo_->setObjectName(QStringLiteral("pagina"));
    testo_->setFrameShape(QFrame::NoFrame);
    testo_->document()->setDocumentMargin(margine);
    QFont lettere;
    lettere.setFamilies(FamiglieDelTesto());
    lettere.setPixelSize(14);
    testo_->setFont(lettere);
    setCentralWidget(testo_);
}

void FinestraAiuto::CreaSbarra() {
    auto* sbarra = addToolBar(QString());
    sbarra->setMovable(false);
    sbarra->setContextMenuPolicy(Qt::PreventContextMenu);
    indietro_ = sbarra->addAction(QString(), testo_, &QTextBrowser::backward);
    avanti_ = sbarra->addAction(QString(), testo_, &QTextBrowser::forward);
    indice_ = sbarra->addAction(QString(), this, [this] {
        testo_->setSource(testo_->source().resolved(QUrl(primaPagina)));
    });
    indietro_->setShortcut(QKeySequence::Back);
    avanti_->setShortcut(QKeySequence::Forward);
    indice_->setShortcut(Qt::ALT | Qt::Key_Home);
    connect(testo_, &QTextBrowser::backwardAvailable, indietro_, &QAction::setEnabled);
    connect(testo_, &QTextBrowser::forwardAvailable, avanti_, &QAction::setEnabled);
    indietro_->setEnabled(false);
    avanti_->setEnabled(false);
}

void FinestraAiuto::Mostra(const QString& file, int contesto, const QWidget* accanto) {
    if (accanto && !isVisible()) Colloca(*accanto);
    Vai(QFileInfo(file), QString::number(contesto) + QStringLiteral(".html"));
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
    testo_->setFocus(Qt::OtherFocusReason);
}

void FinestraAiuto::CambiaVolume(const QString& file) {
    if (isVisible()) Vai(QFileInfo(file), Pagina());
}

void FinestraAiuto::ScriviBottoni() {
    indietro_->setText(InQt(parole_.parIndietro));
    avanti_->setText(InQt(parole_.parAvanti));
    indice_->setText(InQt(parole_.parIndice));
}

void FinestraAiuto::Colloca(const QWidget& accanto) {
    // Its own frame isn't there yet; that of the window in front is the window manager's, too.
    const QMargins cornice = accanto.windowHandle()->frameMargins();
    setScreen(accanto.screen());
    const QRect posto =
        Accanto(misura.grownBy(cornice), larghezzaMinima, accanto.windowHandle()->frameGeometry(),
                accanto.screen()->availableGeometry());
    resize(posto.size().shrunkBy(cornice));
    move(posto.topLeft());
}

void FinestraAiuto::Vai(const QFileInfo& file, QString pagina) {
    ScriviBottoni();
    const QDir pagine(file.path() + QStringLiteral("/help/") + file.completeBaseName());
    if (pagina.isEmpty() || !pagine.exists(pagina)) pagina = primaPagina;
    const bool trovata = pagine.exists(pagina);
    indice_->setEnabled(trovata);
    if (!trovata) return DiMancanza(pagine.path());
    const QUrl indirizzo = QUrl::fromLocalFile(pagine.filePath(pagina));
    const bool altroVolume = testo_->source().resolved(QUrl(".")) != indirizzo.resolved(QUrl("."));
    if (testo_->source() != indirizzo) testo_->setSource(indirizzo);
    if (altroVolume) testo_->clearHistory();
}

void FinestraAiuto::DiMancanza(const QString& cartella) {
    testo_->setSource(QUrl());
    testo_->clearHistory();
    testo_->setHtml(QStringLiteral("<p>%1</p><p><b>%2</b></p>")
                        .arg(InQt(parole_.parAiutoManca).toHtmlEscaped(),
                             QDir::toNativeSeparators(cartella).toHtmlEscaped()));
    MettiTitolo();
}

QString FinestraAiuto::Pagina() const {
    return testo_->source().fileName();
}

void FinestraAiuto::MettiTitolo() {
    const QString pagina = testo_->documentTitle();
    const QString titolo = pagina.isEmpty() ? InQt(parole_.parAiuto) : pagina;
    testo_->setAccessibleName(titolo);
    setWindowTitle(titolo + QStringLiteral(" – ") + QString::fromLatin1(nomeProgramma));
}

void FinestraAiuto::closeEvent(QCloseEvent* evento) {
    QMainWindow::closeEvent(evento);
    chiusa_();
}

}  // namespace corvana
