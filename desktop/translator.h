// Gives the toolkit the words of the program's language for the menus that it makes itself: those
// of text boxes and of the help's pages. GUI thread.
#pragma once

#include <QTranslator>

#include "forms/words.h"

namespace corvana {

class Traduttore final : public QTranslator {
public:
    /// From now on the toolkit asks it. The words may change; they must outlive it.
    explicit Traduttore(const ParoleSchermo& parole);

    QString translate(const char* contesto, const char* testo, const char* distinzione,
                      int quanti) const override;

private:
    const ParoleSchermo& parole_;
};

}  // namespace corvana
