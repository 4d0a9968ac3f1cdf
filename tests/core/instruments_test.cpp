// The list of instruments.
#include <gtest/gtest.h>

#include <array>
#include <string_view>

#include "core/notation.h"

namespace corvana::prova {

namespace {

constexpr std::array<std::string_view, 128> generali = {
    "Acoustic Grand Piano",
    "Bright Acoustic Piano",
    "Electric Grand Piano",
    "Honky-tonk Piano",
    "Rhodes Piano",
    "Chorused Piano",
    "Harpsichord",
    "Clavinet",
    "Celesta",
    "Glockenspiel",
    "Music box",
    "Vibraphone",
    "Marimba",
    "Xylophone",
    "Tubular Bells",
    "Dulcimer",
    "Hammond Organ",
    "Percussive Organ",
    "Rock Organ",
    "Church Organ",
    "Reed Organ",
    "Accordion",
    "Harmonica",
    "Tango Accordian",
    "Acoustic Guitar (nylon)",
    "Acoustic Guitar (steel)",
    "Electric Guitar (jazz)",
    "Electric Guitar (clean)",
    "Electric Guitar (muted)",
    "Overdriven Guitar",
    "Distortion Guitar",
    "Guitar Harmonics",
    "Acoustic Bass",
    "Electric Bass (finger)",
    "Electric Bass (pick)",
    "Fretless Bass",
    "Slap Bass",
    "Slap Bass",
    "Synth Bass",
    "Synth Bass",
    "Violin",
    "Viola",
    "Cello",
    "Contrabass",
    "Tremolo Strings",
    "Pizzicato Strings",
    "Orchestral Harp",
    "Timpani",
    "String Ensemble",
    "String Ensemble",
    "Synth Strings",
    "Synth Strings",
    "Choir Aahs",
    "Voice Oohs",
    "Synth Voice",
    "Orchestra Hit",
    "Trumpet",
    "Trombone",
    "Tuba",
    "Muted Trumpet",
    "French Horn",
    "Brass Section",
    "Synth Brass",
    "Synth Brass",
    "Soprano Sax",
    "Alto Sax",
    "Tenor Sax",
    "Baritone Sax",
    "Oboe",
    "English Horn",
    "Bassoon",
    "Clarinet",
    "Piccolo",
    "Flute",
    "Recorder",
    "Pan Flute",
    "Bottle Blow",
    "Shakuhachi",
    "Whistle",
    "Ocarina",
    "Lead (square)",
    "Lead (sawtooth)",
    "Lead (caliope lead)",
    "Lead (chiff lead)",
    "Lead (charang)",
    "Lead (voice)",
    "Lead (fifths)",
    "Lead (brass + lead)",
    "Pad (new age)",
    "Pad (warm)",
    "Pad (polysynth)",
    "Pad (choir)",
    "Pad (bowed)",
    "Pad (metallic)",
    "Pad (halo)",
    "Pad (sweep)",
    "FX (rain)",
    "FX (soundtrack)",
    "FX (crystal)",
    "FX (atmosphere)",
    "FX (brightness)",
    "FX (goblins)",
    "FX (echoes)",
    "FX (sci-fi)",
    "Sitar",
    "Banjo",
    "Shamisen",
    "Koto",
    "Kalimba",
    "Bagpipe",
    "Fiddle",
    "Shanai",
    "Tinkle Bell",
    "Agogo",
    "Steel Drums",
    "Woodblock",
    "Taiko Drum",
    "Melodic Tom",
    "Synth Drum",
    "Reverse Cymbal",
    "Guitar Fret Noise",
    "Breath Noise",
    "Seashore",
    "Bird Tweet",
    "Telephone Ring",
    "Helicopter",
    "Applause",
    "Gunshot",
};

}  // namespace

TEST(NomeStrumento, FollowsTheGeneralMidiOrder) {
    for (int programma = 0; programma < 128; ++programma)
        EXPECT_EQ(NomeStrumento(programma), generali.at(static_cast<std::size_t>(programma)))
            << programma;
}

TEST(NomeStrumento, FivePairsOfProgramsShareAName) {
    for (const int primo : {36, 38, 48, 50, 62})
        EXPECT_EQ(NomeStrumento(primo), NomeStrumento(primo + 1)) << primo;
    EXPECT_EQ(NomeStrumento(37), "Slap Bass");
}

TEST(NomeStrumento, IsEmptyOutsideOf0To127) {
    for (const std::int32_t programma : {-1, 128, 129, 2147483647, -2147483647})
        EXPECT_EQ(NomeStrumento(programma), "") << programma;
}

}  // namespace corvana::prova
