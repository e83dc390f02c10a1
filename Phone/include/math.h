// Floating-point functions in their three widths, their classes and special values.
#pragma once

#define HUGE_VAL __builtin_huge_val()
#define HUGE_VALF __builtin_huge_valf()
#define HUGE_VALL __builtin_huge_vall()
#define INFINITY __builtin_inff()
#define NAN __builtin_nanf("")

#define FP_NAN 1
#define FP_INFINITE 2
#define FP_ZERO 3
#define FP_NORMAL 4
#define FP_SUBNORMAL 5

#define FP_ILOGB0 (-2147483647 - 1)
#define FP_ILOGBNAN (-2147483647 - 1)

#define MATH_ERRNO 1
#define MATH_ERREXCEPT 2
#define math_errhandling MATH_ERREXCEPT

#define M_E 2.71828182845904523536
#define M_PI 3.14159265358979323846
#define M_PI_2 1.57079632679489661923
#define M_PI_4 0.785398163397448309616
#define M_SQRT2 1.41421356237309504880

typedef float float_t;
typedef double double_t;

#define PHONE_MATH_UNARY(name)                                                                                         \
    double name(double);                                                                                               \
    float name##f(float);                                                                                              \
    long double name##l(long double);

#define PHONE_MATH_BINARY(name)                                                                                        \
    double name(double, double);                                                                                       \
    float name##f(float, float);                                                                                       \
    long double name##l(long double, long double);

#define PHONE_MATH_ROUND(name, result)                                                                                 \
    result name(double);                                                                                               \
    result name##f(float);                                                                                             \
    result name##l(long double);

#define PHONE_MATH_SCALE(name, exponent)                                                                               \
    double name(double, exponent);                                                                                     \
    float name##f(float, exponent);                                                                                    \
    long double name##l(long double, exponent);

#ifdef __cplusplus
extern "C" {
#endif
PHONE_MATH_UNARY(acos)
PHONE_MATH_UNARY(acosh)
PHONE_MATH_UNARY(asin)
PHONE_MATH_UNARY(asinh)
PHONE_MATH_UNARY(atan)
PHONE_MATH_UNARY(atanh)
PHONE_MATH_UNARY(cbrt)
PHONE_MATH_UNARY(ceil)
PHONE_MATH_UNARY(cos)
PHONE_MATH_UNARY(cosh)
PHONE_MATH_UNARY(erf)
PHONE_MATH_UNARY(erfc)
PHONE_MATH_UNARY(exp)
PHONE_MATH_UNARY(exp2)
PHONE_MATH_UNARY(expm1)
PHONE_MATH_UNARY(fabs)
PHONE_MATH_UNARY(floor)
PHONE_MATH_UNARY(lgamma)
PHONE_MATH_UNARY(log)
PHONE_MATH_UNARY(log10)
PHONE_MATH_UNARY(log1p)
PHONE_MATH_UNARY(log2)
PHONE_MATH_UNARY(logb)
PHONE_MATH_UNARY(nearbyint)
PHONE_MATH_UNARY(rint)
PHONE_MATH_UNARY(round)
PHONE_MATH_UNARY(sin)
PHONE_MATH_UNARY(sinh)
PHONE_MATH_UNARY(sqrt)
PHONE_MATH_UNARY(tan)
PHONE_MATH_UNARY(tanh)
PHONE_MATH_UNARY(tgamma)
PHONE_MATH_UNARY(trunc)

PHONE_MATH_BINARY(atan2)
PHONE_MATH_BINARY(copysign)
PHONE_MATH_BINARY(fdim)
PHONE_MATH_BINARY(fmax)
PHONE_MATH_BINARY(fmin)
PHONE_MATH_BINARY(fmod)
PHONE_MATH_BINARY(hypot)
PHONE_MATH_BINARY(nextafter)
PHONE_MATH_BINARY(pow)
PHONE_MATH_BINARY(remainder)

PHONE_MATH_ROUND(ilogb, int)
PHONE_MATH_ROUND(llrint, long long)
PHONE_MATH_ROUND(llround, long long)
PHONE_MATH_ROUND(lrint, long)
PHONE_MATH_ROUND(lround, long)

PHONE_MATH_SCALE(frexp, int*)
PHONE_MATH_SCALE(ldexp, int)
PHONE_MATH_SCALE(nexttoward, long double)
PHONE_MATH_SCALE(scalbln, long)
PHONE_MATH_SCALE(scalbn, int)

double fma(double, double, double);
float fmaf(float, float, float);
long double fmal(long double, long double, long double);

double modf(double, double*);
float modff(float, float*);
long double modfl(long double, long double*);

double nan(const char*);
float nanf(const char*);
long double nanl(const char*);

double remquo(double, double, int*);
float remquof(float, float, int*);
long double remquol(long double, long double, int*);
#ifdef __cplusplus
}
#endif

#undef PHONE_MATH_UNARY
#undef PHONE_MATH_BINARY
#undef PHONE_MATH_ROUND
#undef PHONE_MATH_SCALE
