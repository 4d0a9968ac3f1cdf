# Fails when a folder includes what it may not: run as `cmake -DROOT=... -P check_arrows.cmake`.
# A folder may include itself and the folders listed for it; only desktop/ sees Qt, only
# sound/outputs/ the audio libraries.

cmake_minimum_required(VERSION 3.25)

set(may_forms "")
set(may_realtime "")
set(may_sound forms)
set(may_core forms sound)
foreach(window trainer metronome utilities)
    set(may_${window} forms sound core)
endforeach()
# The melody is plain logic: of the runtime and the core it knows faults, how long a short wait
# takes, texts and which notes have a key.
set(may_melody forms core)
set(may_piano forms sound core)
set(may_eartrainer forms sound core piano)
set(may_composer forms sound core melody piano)
set(may_program forms sound core trainer metronome eartrainer utilities melody composer piano)
set(toolkits "#include *[<\"](Q[A-Z]|SDL|fluidsynth|RtMidi|rtmidi|jack/|alsa/|systemd/)")
set(faults "")

foreach(folder forms realtime sound core melody piano trainer metronome composer eartrainer
        utilities program)
    file(GLOB sources ${ROOT}/${folder}/*.h ${ROOT}/${folder}/*.cpp)
    set(allowed ${folder} ${may_${folder}})
    foreach(source IN LISTS sources)
        file(STRINGS ${source} lines REGEX "^#include")
        foreach(line IN LISTS lines)
            if(line MATCHES "^#include \"([a-z]+)/" AND NOT CMAKE_MATCH_1 IN_LIST allowed)
                string(APPEND faults "${source}: ${line}\n")
            elseif(folder STREQUAL "melody" AND line MATCHES "\"(forms|core)/" AND
                   NOT line MATCHES "\"(forms/(fault|granularity)|core/(octaves|text))\\.h\"")
                string(APPEND faults "${source}: ${line}\n")
            elseif((line MATCHES "${toolkits}" AND NOT folder STREQUAL "realtime") OR (line MATCHES "sound/outputs/"))
                string(APPEND faults "${source}: ${line}\n")
            endif()
        endforeach()
    endforeach()
endforeach()

file(GLOB sources ${ROOT}/sound/outputs/*.h ${ROOT}/sound/outputs/*.cpp)
foreach(source IN LISTS sources)
    file(STRINGS ${source} lines REGEX "^#include *([<\"]Q[A-Z]|\"(core|trainer|desktop)/)")
    foreach(line IN LISTS lines)
        string(APPEND faults "${source}: ${line}\n")
    endforeach()
endforeach()

if(faults)
    message(FATAL_ERROR "Arrows that run the wrong way:\n${faults}")
endif()
