// The whole program in real windows, with a recorder for its sound and a fresh user's settings.
// GUI thread.
#pragma once

#include <QTemporaryDir>

#include "desktop/application.h"
#include "desktop/logic.h"
#include "tests/desktop/screen.h"

namespace corvana::prova {

/// A machine without sound, whose user's own files lie in `stato` and the program's in `dati`.
Macchina MacchinaMuta(const QString& dati, const QTemporaryDir& stato);

class PalcoProgramma {
public:
    /// Returns when the main window can be used. Without `dati` the program finds none of its own
    /// files. `prepara` may change the machine that it finds.
    explicit PalcoProgramma(const QString& dati = {},
                            const std::function<void(Macchina&)>& prepara = {});
    PalcoProgramma(const PalcoProgramma&) = delete;
    PalcoProgramma& operator=(const PalcoProgramma&) = delete;
    ~PalcoProgramma();

    /// What a text box, or a button, of the window in front says.
    QString Testo(const char* casella);
    QString Scritta(const char* bottone);
    /// How many notes have been answered, right and wrong.
    int Risposte();

private:
    QTemporaryDir stato_;
    int argc_ = 0;
    Applicazione applicazione_{argc_, nullptr};

public:
    Scrivania& scrivania = applicazione_.LaScrivania();
};

}  // namespace corvana::prova
