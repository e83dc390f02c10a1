// What a class's `sharedInstance` and the like answer.
#pragma once

#include "Platform/ObjC/Object.hpp"
#include "Simulator/Base/Phone.hpp"

namespace Simulator {

template <class Facade>
struct SharedObject {
    Facade object = Facade::make();
};

/// The phone's one object of a class, made when first asked for.
template <class Facade>
Facade sharedObject()
{
    return Phone::part<SharedObject<Facade>>().object;
}

}
