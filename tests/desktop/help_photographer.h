// Takes pictures of real windows for the help, and does in them what is to be shown. GUI thread.
#pragma once

#include <QAbstractButton>
#include <QDir>
#include <QPainter>

#include "desktop/theme.h"
#include "tests/desktop/program_stage.h"

namespace corvana::prova {

class Fotografo {
public:
    Fotografo(Scrivania& scrivania, const char* cartella)
        : scrivania_(scrivania), cartella_(QString::fromLocal8Bit(cartella)) {}

    Cosa Di(const char* nome) { return Trova(scrivania_, QString::fromUtf8(nome)); }
    const Aspetto& Stato(const char* nome) { return StatoDi(scrivania_, QString::fromUtf8(nome)); }
    QString Testo(const char* bottone) { return Di(bottone).Come<QAbstractButton>().text(); }
    void Premi(const char* nome) { Clicca(scrivania_, QString::fromUtf8(nome)); }
    void Scegli(const char* voce) { TrovaVoce(scrivania_, QString::fromUtf8(voce)).trigger(); }
    void Premi(Qt::Key tasto) { prova::Premi(scrivania_, tasto); }
    void Lascia(Qt::Key tasto) { prova::Lascia(scrivania_, tasto); }
    void Attendi(const char* finestra) { AspettaFinestra(scrivania_, QLatin1String(finestra)); }
    /// The whole window in front.
    void Scatta(const char* nome) { Salva(Fotografa(scrivania_), nome); }
    /// The part of it from the one control to the other, with a little around it.
    void Scatta(const char* nome, const char* da, const char* a) {
        constexpr int intorno = 8;
        const QRect parte = (Posto(da) | Posto(a)).adjusted(-intorno, -intorno, intorno, intorno);
        QMainWindow& finestra = scrivania_.Davanti()->Finestra();
        Salva(finestra.grab(parte & finestra.centralWidget()->geometry()).toImage(), nome);
    }
    /// A window over the main one, opened by `apri`; `finisci` makes it ready to be closed.
    void ScattaSopra(const char* nome, const char* finestra, const std::function<void()>& apri,
                     const std::function<void()>& finisci = {}) {
        apri();
        Attendi(finestra);
        Scatta(nome);
        if (finisci) finisci();
        Chiudi();
    }
    /// Closes what lies over the main window.
    void Chiudi() {
        scrivania_.Davanti()->Finestra().close();
        Attendi("CorvanaMainF");
    }

private:
    QRect Posto(const char* nome) {
        const Cosa cosa = Di(nome);
        return {cosa.NellaFinestra(QPoint()), cosa.rect().size()};
    }
    void Salva(const QImage& foto, const char* nome) const {
        const QString file = QDir(cartella_).filePath(QLatin1String(nome) + ".png");
        QImage suCarta(foto.size(), QImage::Format_RGB32);
        suCarta.fill(tinta::carta);
        QPainter(&suCarta).drawImage(suCarta.rect(), foto);
        if (!suCarta.save(file)) throw std::runtime_error(nome);
    }

    Scrivania& scrivania_;
    QString cartella_;
};

inline void Deve(bool condizione) {
    if (!condizione) throw std::runtime_error("the program never came to the state to be shown");
}

}  // namespace corvana::prova
