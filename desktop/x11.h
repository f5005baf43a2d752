// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <memory>
#include <string>
#include <xcb/xcb.h>

namespace velmoriax::desktop {

/// A reply of the X server, freed with its owner.
template<typename Reply>
using XcbReply = std::unique_ptr<Reply, decltype(&std::free)>;

/// The connection to the X server; null on another platform.
::xcb_connection_t* x11Connection();

/// The atom of a name, XCB_ATOM_NONE when no program has created it.
::xcb_atom_t x11Atom(::xcb_connection_t* connection, const std::string& name);

} // namespace velmoriax::desktop
