#pragma once

#include <cstdint>

/// Smooth random fields over the plane, built from arithmetic that is the same on every system.
namespace sample {

/// Returns gradient noise of wavelength 1, about -1 to 1.
double noise(double x, double y, std::uint32_t seed);

/// Returns the sum of octaves of noise, each with half the wavelength and half the height of the
/// one before; about -1 to 1.
double fractal(double x, double y, int octaves, std::uint32_t seed);

/// Returns octaves of noise folded into sharp crests, 0 to 1.
double ridges(double x, double y, int octaves, std::uint32_t seed);

/// Returns 0 below `low`, 1 above `high`, and a smooth rise between.
double smooth_step(double low, double high, double value);

} // namespace sample
