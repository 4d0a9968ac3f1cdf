// Copies melodies from the root of a removable medium into the melody window's current folder, as
// they are. Logic thread, which nothing pumps while it copies.
#pragma once

#include <functional>

#include "core/globals.h"
#include "forms/form.h"

namespace corvana {

class frmCopyFromA final : public Form {
public:
    /// `composer`, over which it opens, and `ListaFD`, which lists its current folder anew, must
    /// live longer.
    frmCopyFromA(const Ambiente& ambiente, const Form& composer, std::function<void()> ListaFD);

    Etichetta Label1{*this, "Label1"};
    Etichetta lblCurrPath{*this, "lblCurrPath"};
    ListaMultipla List1{*this, "List1"};
    Bottone cmdCopia{*this, "cmdCopia"};
    Bottone cmdChiudi{*this, "cmdChiudi"};

    void Form_Load() override;
    /// Adds the melodies of the medium to those that the list has already.
    void Form_Activate() override;
    void Form_Unload(bool& Cancel) override;

    void cmdCopia_Click();
    void cmdChiudi_Click();

private:
    void Colloca();
    void ElencaSupporto();
    void CopiaScelte();
    bool Lavora(void (frmCopyFromA::*lavoro)());

    Ambiente a_;
    const Form& composer_;
    std::function<void()> ListaFD_;
    bool occupata_ = false;  ///< the list is being filled, or files are being copied
};

}  // namespace corvana
