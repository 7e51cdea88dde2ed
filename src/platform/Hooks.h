#pragma once

// The replaceable hooks of the platform (the blocking services, the file calls)
// are structs of functions. Installing a set puts each of its members that is
// set in place of the present one and keeps the others; the set that was there
// comes back, so a caller can put it back.
template <typename Hooks, typename... Member>
Hooks replaceSetHooks(Hooks& present, const Hooks& replacement, Member Hooks::*... members)
{
    Hooks previous = present;
    ((replacement.*members ? void(present.*members = replacement.*members) : void()), ...);
    return previous;
}
