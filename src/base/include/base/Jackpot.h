// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The announcement of the next jackpot, cut out of a page of the Internet.
#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// The texts of the page's "<span class=" of the classes txtrouge13g, txtrouge11 and txtrouge11g,
/// in their order, without tags, on one line; empty when there is none.
std::string LireJackpot(std::string_view html);

}  // namespace norvane
