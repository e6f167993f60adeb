#pragma once

struct FNewSetUp;

/** Adds a set-up to the project, as one step, and shows it. */
namespace FSetUpBuilder {

void build(const FNewSetUp& setUp);

}  // namespace FSetUpBuilder
