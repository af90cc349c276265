// SPDX-License-Identifier: MIT
//
// The object runtime's own types under their own names. Declared here, so that no header of a
// runtime is needed: both runtimes this is built for agree on them.
#pragma once

#include <cstddef>

extern "C" {
struct objc_object;
struct objc_class;
struct objc_selector;
struct objc_method;
struct objc_ivar;
struct objc_protocol;
}

using id = objc_object*;           // any object; null is nil
using Class = objc_class*;         // an object too: may be passed where an id is expected
using SEL = const objc_selector*;  // never compared with ==, see sameSelector
using Method = objc_method*;       // one entry of a class's method list
using Ivar = objc_ivar*;           // one entry of a class's field list
using IMP = void (*)();            // always cast to the method's real signature before a call
