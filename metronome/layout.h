// Where the metronome's controls lie, in twips. Logic thread.
#pragma once

namespace corvana {

class Form;
class PannelloMetronomo;
class frmConfMetro;

void DisponiMetronomo(Form& finestra, PannelloMetronomo& pannello);
void DisponiConfMetro(frmConfMetro& finestra);

}  // namespace corvana
