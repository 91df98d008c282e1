#pragma once

// The standard normal law: its distribution function and the inverse of it.

// The probability that a standard normal variable takes a value at or below x.
double NormalCDF(double x);
// The x for which NormalCDF(x) is p, to about a millionth.
double NormalInverse(double p);
