#pragma once

class IGamma;

// Creates the gamma backend of this platform. The caller owns the result.
class GammaFactory
{
public:
    virtual ~GammaFactory() = default;
    virtual IGamma* get_gamma();
};
