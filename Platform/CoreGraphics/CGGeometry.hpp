// Points, sizes, rectangles, transforms and insets, as the platform lays them out.
#pragma once

#include "Platform/ObjC/Encoding.hpp"

using CGFloat = double;

struct CGPoint {
    CGFloat x = 0;
    CGFloat y = 0;
    bool operator==(const CGPoint&) const = default;
};

struct CGSize {
    CGFloat width = 0;
    CGFloat height = 0;
    bool operator==(const CGSize&) const = default;
};

struct CGRect {
    CGPoint origin;
    CGSize size;
    bool operator==(const CGRect&) const = default;
};

struct CGAffineTransform {
    CGFloat a = 0;
    CGFloat b = 0;
    CGFloat c = 0;
    CGFloat d = 0;
    CGFloat tx = 0;
    CGFloat ty = 0;
    bool operator==(const CGAffineTransform&) const = default;
};

struct UIEdgeInsets {
    CGFloat top = 0;
    CGFloat left = 0;
    CGFloat bottom = 0;
    CGFloat right = 0;
    bool operator==(const UIEdgeInsets&) const = default;
};

inline constexpr CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height)
{
    return {{x, y}, {width, height}};
}
inline constexpr CGAffineTransform CGAffineTransformMakeScale(CGFloat x, CGFloat y)
{
    return {x, 0, 0, y, 0, 0};
}
inline constexpr CGAffineTransform CGAffineTransformIdentity{1, 0, 0, 1, 0, 0};

template <>
inline constexpr std::string_view ObjC::structureEncoding<CGPoint> = "{CGPoint=dd}";
template <>
inline constexpr std::string_view ObjC::structureEncoding<CGSize> = "{CGSize=dd}";
template <>
inline constexpr std::string_view ObjC::structureEncoding<CGRect> = "{CGRect={CGPoint=dd}{CGSize=dd}}";
template <>
inline constexpr std::string_view ObjC::structureEncoding<CGAffineTransform> = "{CGAffineTransform=dddddd}";
template <>
inline constexpr std::string_view ObjC::structureEncoding<UIEdgeInsets> = "{UIEdgeInsets=dddd}";
