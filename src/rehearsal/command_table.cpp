#include "rehearsal/command_table.h"

#include "rehearsal/cg_commands.h"
#include "rehearsal/layer_commands.h"
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

    {u"MIXER OPACITY", Target::Layer, 0, 0, mixerOpacity},
    {u"MIXER FILL", Target::Layer, 0, 0, mixerFill},
    {u"MIXER VOLUME", Target::Layer, 0, 0, mixerVolume},
    {u"MIXER KEYER", Target::Layer, 0, 0, mixerKeyer},
    {u"MIXER CLEAR", Target::Layer, 0, 0, mixerClear},
    {u"MIXER ANCHOR", Target::Layer, 0, 0, acknowledge},
    {u"MIXER BLEND", Target::Layer, 0, 0, acknowledge},
    {u"MIXER BRIGHTNESS", Target::Layer, 0, 0, acknowledge},
    {u"MIXER CHROMA", Target::Layer, 0, 0, acknowledge},
    {u"MIXER CLIP", Target::Layer, 0, 0, acknowledge},
    {u"MIXER COMMIT", Target::Layer, 0, 0, acknowledge},
    {u"MIXER CONTRAST", Target::Layer, 0, 0, acknowledge},
    {u"MIXER CROP", Target::Layer, 0, 0, acknowledge},
    {u"MIXER GRID", Target::Layer, 0, 0, acknowledge},
    {u"MIXER INVERT", Target::Layer, 0, 0, acknowledge},
    {u"MIXER LEVELS", Target::Layer, 0, 0, acknowledge},
    {u"MIXER MASTERVOLUME", Target::Layer, 0, 0, acknowledge},
    {u"MIXER MIPMAP", Target::Layer, 0, 0, acknowledge},
    {u"MIXER PERSPECTIVE", Target::Layer, 0, 0, acknowledge},
    {u"MIXER ROTATION", Target::Layer, 0, 0, acknowledge},
    {u"MIXER SATURATION", Target::Layer, 0, 0, acknowledge},
    {u"MIXER STRAIGHT_ALPHA_OUTPUT", Target::Layer, 0, 0, acknowledge},

    {u"VERSION", Target::Server, 0, 0, version},
    {u"INFO", Target::ServerOrChannel, 0, 0, info},
};

}  // namespace

std::span<const CommandRow> commandTable() {
    return kCommands;
}

}  // namespace zelvor::rehearsal
