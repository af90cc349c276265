// SPDX-License-Identifier: MIT
//
// The runtime's C functions that the bridge is built on. Visible across libraries whatever the
// library's own default is, since host and extension share one runtime.
#pragma once

#include <cstddef>
#include <cstdint>

#include "bridge_platform.h"

#pragma GCC visibility push(default)
extern "C" {

// Selectors.
SEL sel_registerName(const char* name);
const char* sel_getName(SEL selector);
BOOL sel_isEqual(SEL left, SEL right);

// Classes. Look-ups answer nil for a name that nobody has registered.
Class objc_getClass(const char* name);
const char* class_getName(Class aClass);
Class class_getSuperclass(Class aClass);
BOOL class_respondsToSelector(Class aClass, SEL selector);

// Methods. Adding leaves a method that the class itself already has in place and answers NO.
BOOL class_addMethod(Class aClass, SEL selector, IMP implementation, const char* encoding);
Method class_getInstanceMethod(Class aClass, SEL selector);
IMP method_getImplementation(Method method);
IMP method_setImplementation(Method method, IMP implementation);
const char* method_getTypeEncoding(Method method);

// Fields.
Ivar class_getInstanceVariable(Class aClass, const char* name);
std::ptrdiff_t ivar_getOffset(Ivar field);
std::size_t class_getInstanceSize(Class aClass);
const char* ivar_getTypeEncoding(Ivar field);

// Classes made at run time.
Class objc_allocateClassPair(Class superclass, const char* name, std::size_t extraBytes);
void objc_registerClassPair(Class aClass);
BOOL class_addIvar(Class aClass, const char* name, std::size_t size, std::uint8_t alignmentLog2,
                   const char* encoding);
objc_protocol* objc_getProtocol(const char* name);
BOOL class_addProtocol(Class aClass, objc_protocol* protocol);

// Objects tied to other objects, one for each key. Policy 1 retains what is set.
void objc_setAssociatedObject(id object, const void* key, id value, std::uintptr_t policy);
id objc_getAssociatedObject(id object, const void* key);

// Autorelease pools nest; popping one pops all that were pushed after it.
void* objc_autoreleasePoolPush();
void objc_autoreleasePoolPop(void* pool);

// The hooking service: makes `replacement` the implementation of the selector on the class itself
// and stores the implementation in effect until then, inherited or own, in *saved.
void MSHookMessageEx(Class aClass, SEL selector, IMP replacement, IMP* saved);
}
#pragma GCC visibility pop
