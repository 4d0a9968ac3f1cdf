// A small window for what the user's hand does on a real screen: it writes down what it is told.
// No Qt: the test itself makes one too, for where its controls lie. Logic thread.
#pragma once

#include <functional>
#include <string>

#include "forms/boxes.h"
#include "forms/windows.h"

namespace corvana::prova {

class FinestraPiccola final : public Form {
public:
    using Diario = std::function<void(const std::string&)>;

    FinestraPiccola(Finestre& finestre, Pompa& pompa, Riquadri& riquadri, Diario diario);

    /// While it is held down its handler goes round and round.
    Etichetta tieni{*this, "tieni"};
    Bottone bottone{*this, "bottone"};
    Casella casella{*this, "casella"};
    MenuContestuale menu{*this, "menu"};
    VoceMenu voce{*this, "voce", &menu};

    /// F2 makes `tieni` unusable, F3 opens a window over this one, F4 a box.
    void Form_KeyDown(const Evento& tasto) override;

private:
    struct Sopra : Form {
        explicit Sopra(Finestre& finestre);
        void Form_KeyDown(const Evento& tasto) override;
        Finestre& finestre;
    };

    void Tieni();

    Finestre& finestre_;
    Pompa& pompa_;
    Riquadri& riquadri_;
    Diario diario_;
    Sopra sopra_;
    bool premuto_ = false;
};

}  // namespace corvana::prova
