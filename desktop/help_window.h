// The help: pages with pictures, one folder of them for each language, in a window of its own that
// blocks no other. GUI thread.
#pragma once

#include <QMainWindow>
#include <functional>

#include "forms/words.h"

class QFileInfo;
class QTextBrowser;

namespace corvana {

class FinestraAiuto final : public QMainWindow {
public:
    /// `parole`, which must outlive the window, may change: they are read at each page that is
    /// shown. `chiusa` is called when the user has closed the window.
    FinestraAiuto(const ParoleSchermo& parole, std::function<void()> chiusa);

    /// Shows the page of that context in front. `file` is the help's name, without need of a file
    /// there: "/x/corvana.chm" has its pages in "/x/help/corvana", "7.html" for the context 7. The
    /// first page, "index.html", stands for one that isn't there; without that the window tells
    /// what is missing. It opens beside `accanto`, if that isn't null.
    void Mostra(const QString& file, int contesto, const QWidget* accanto = nullptr);

    /// The same page of another file of pages, if any is being read.
    void CambiaVolume(const QString& file);

    /// File name of the page that is shown; empty when none was found.
    QString Pagina() const;
    QTextBrowser& Testo() const { return *testo_; }

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void CreaSbarra();
    void DisponiFoglio();
    void Colloca(const QWidget& accanto);
    void ScriviBottoni();
    void Vai(const QFileInfo& file, QString pagina);
    void DiMancanza(const QString& cartella);
    void MettiTitolo();

    const ParoleSchermo& parole_;
    std::function<void()> chiusa_;
    QTextBrowser* testo_;
    QAction* indietro_;
    QAction* avanti_;
    QAction* indice_;
};

}  // namespace corvana
