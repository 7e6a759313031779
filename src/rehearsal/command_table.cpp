#include "rehearsal/command_table.h"

#include "rehearsal/cg_commands.h"
#include "rehearsal/channel_commands.h"
#include "rehearsal/data_commands.h"
#include "rehearsal/layer_commands.h"
#include "rehearsal/mixer_commands.h"
#include "rehearsal/server_commands.h"

namespace zelvor::rehearsal {

namespace {

using Target = CommandRow::Target;

constexpr int kTemplateLayer = 9999;  // where CG works when a line names no layer

constexpr CommandRow kCommands[] = {
    {u"CG ADD", Target::Layer, kTemplateLayer, 3, cgAdd},
    {u"CG PLAY", Target::Layer, kTemplateLayer, 1, cgPlay},
    {u"CG UPDATE", Target::Layer, kTemplateLayer, 2, cgUpdate},
    {u"CG STOP", Target::Layer, kTemplateLayer, 1, cgStop},
    {u"CG NEXT", Target::Layer, kTemplateLayer, 1, cgNext},
    {u"CG REMOVE", Target::Layer, kTemplateLayer, 1, cgRemove},
    {u"CG INVOKE", Target::Layer, kTemplateLayer, 2, cgInvoke},
    {u"CG CLEAR", Target::Layer, kTemplateLayer, 0, cgClear},

    {u"PLAY", Target::Layer, 0, 0, play},
    {u"LOAD", Target::Layer, 0, 1, load},
    {u"LOADBG", Target::Layer, 0, 1, loadBackground},
    {u"PAUSE", Target::Layer, 0, 0, pause},
    {u"RESUME", Target::Layer, 0, 0, resume},
    {u"STOP", Target::Layer, 0, 0, stop},
    {u"CLEAR", Target::Layer, 0, 0, clear},
    {u"CALL", Target::Layer, 0, 1, call},
    {u"SWAP", Target::Layer, 0, 1, swapPlaces},

    {u"CLEAR ALL", Target::Server, 0, 0, clearAll},
    {u"ADD", Target::Layer, 0, 1, addOutput},
    {u"REMOVE", Target::Layer, 0, 0, removeOutput},
    {u"SET MODE", Target::Layer, 0, 1, setMode},
    {u"SET", Target::Layer, 0, 1, setUnknown},
    {u"LOCK ACQUIRE", Target::Locks, 0, 1, lockAcquire},
    {u"LOCK RELEASE", Target::Locks, 0, 0, lockRelease},
    {u"LOCK CLEAR", Target::Locks, 0, 0, lockClear},

    {u"MIXER OPACITY", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER FILL", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER CLIP", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER CROP", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER ANCHOR", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER ROTATION", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER PERSPECTIVE", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER BRIGHTNESS", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER SATURATION", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER CONTRAST", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER LEVELS", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER CHROMA", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER INVERT", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER KEYER", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER VOLUME", Target::Layer, 0, 0, mixerProperty},
    {u"MIXER BLEND", Target::Layer, 0, 0, mixerBlend},
    {u"MIXER MASTERVOLUME", Target::Layer, 0, 0, mixerMasterVolume},
    {u"MIXER GRID", Target::Layer, 0, 1, mixerGrid},
    {u"MIXER COMMIT", Target::Layer, 0, 0, mixerCommit},
    {u"MIXER CLEAR", Target::Layer, 0, 0, mixerClear},

    {u"DATA STORE", Target::Server, 0, 2, dataStore},
    {u"DATA RETRIEVE", Target::Server, 0, 1, dataRetrieve},
    {u"DATA REMOVE", Target::Server, 0, 1, dataRemove},
    {u"DATA LIST", Target::Server, 0, 0, dataList},

    {u"VERSION", Target::Server, 0, 0, version},
    {u"INFO", Target::ServerOrChannel, 0, 0, info},
    {u"INFO PATHS", Target::Server, 0, 0, infoPaths},
    {u"INFO CONFIG", Target::Server, 0, 0, infoConfig},
    {u"LOG LEVEL", Target::Server, 0, 1, logLevel},
    {u"DIAG", Target::Server, 0, 0, acknowledge},
    {u"GL INFO", Target::Server, 0, 0, glInfo},
    {u"GL GC", Target::Server, 0, 0, acknowledge},
    {u"TLS", Target::Server, 0, 0, unavailable},
    {u"CLS", Target::Server, 0, 0, unavailable},
    {u"FLS", Target::Server, 0, 0, unavailable},
    {u"CINF", Target::Server, 0, 1, unavailable},
    {u"THUMBNAIL LIST", Target::Server, 0, 0, unavailable},
    {u"THUMBNAIL RETRIEVE", Target::Server, 0, 1, unavailable},
    {u"THUMBNAIL GENERATE", Target::Server, 0, 1, unavailable},
    {u"THUMBNAIL GENERATE_ALL", Target::Server, 0, 0, unavailable},
};

}  // namespace

std::span<const CommandRow> commandTable() {
    return kCommands;
}

}  // namespace zelvor::rehearsal
