// A window with the five-octave keyboard on it. Logic thread.
#pragma once

#include <functional>
#include <string>

#include "forms/form.h"
#include "piano/screen_keyboard.h"

namespace corvana::prova {

class FormTastiera final : public Form {
public:
    using Diario = std::function<void(std::string)>;

    /// Its keys tell `diario` what the mouse does to them, each by its name.
    explicit FormTastiera(Diario diario = {});

    TastieraSchermo tastiera{*this,
                             "img2",
                             nullptr,
                             TastieraSchermo::Corredo::TastiEBarre,
                             {150, 150, postoTastiera.width, postoTastiera.height}};
    Bottone accanto{*this, "accanto"};

private:
    void Ascolta(Etichetta& tasto, const Diario& diario);
};

}  // namespace corvana::prova
