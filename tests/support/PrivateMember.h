// SPDX-License-Identifier: Apache-2.0
// Private members of the library's classes, for tests of what a class holds, in which order, and
// what copies share. (An explicit instantiation may name a private member.)
//
//     struct SessionName : hlxtest::MemberName<char* HLXSession::*>
//     {
//         friend Pointer Get(SessionName);
//     };
//     template struct hlxtest::Reveal<SessionName, &HLXSession::_SessionName>;
//     ... session.*Get(SessionName()) ...
//
// A name stands in hlxtest itself, not in an unnamed namespace: so does the function of Reveal.
#pragma once

namespace hlxtest {

template <class PointerToMember>
struct MemberName
{
    using Pointer = PointerToMember;
};

template <class Name, typename Name::Pointer member>
struct Reveal
{
    friend typename Name::Pointer Get(Name) { return member; }
};

}  // namespace hlxtest
