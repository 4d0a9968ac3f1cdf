// Gives names to controls that say nothing themselves: style words "nome:" and a label's name. What
// such labels say, one after the other, is what a screen reader says for the control; of one that
// is named by "consiglio:" it is the tool tip. GUI thread; the views must outlive it.
#pragma once

#include <memory>
#include <vector>

#include "desktop/view.h"

namespace corvana {

class Nominatore {
public:
    explicit Nominatore(const std::vector<std::unique_ptr<Vista>>& viste);

    /// To be called when a caption has changed.
    void Rinnova() const;

private:
    struct Etichetta {
        const Vista* vista;
        bool consiglio;
    };
    struct Nominata {
        Vista* vista;
        std::vector<Etichetta> etichette;
    };
    std::vector<Nominata> nominate_;
};

}  // namespace corvana
