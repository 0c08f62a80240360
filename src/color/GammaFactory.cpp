#include "color/GammaFactory.h"

#include "color/LinuxGamma.h"

IGamma* GammaFactory::get_gamma()
{
    return new LinuxGamma();
}
