// SPDX-License-Identifier: Apache-2.0
// Small documents that have something of everything, as bytes of files. Their pages are small, so
// that a byte that is changed is mostly one that counts.
#pragma once

#include <string>

namespace hlxfuzz {

/// An analysis case with a step, and features with attributes of every kind, links and geometry.
std::string SampleAnalysis();

/// A product with a child that is a part of another document.
std::string SampleProduct();

/// A part with geometry (which no kernel would take for a shape) and an access to a cell of it.
std::string SamplePart();

/// Puts beside them what they link to, as files. True.
bool StoreLinkedSamples();

}  // namespace hlxfuzz
