#include "color/IGamma.h"

#include "color/ColorRamp.h"

IGamma::IGamma()
    : color_ramp(new ColorRamp())
{
}

IGamma::~IGamma()
{
    delete color_ramp;
}

void IGamma::set_color_scheme(int scheme)
{
    color_ramp->set_color_scheme(scheme);
    ++ramp_generation;
}

void IGamma::set_leading_color(int leading)
{
    color_ramp->set_leading_color(leading);
    ++ramp_generation;
}
