// The processes that the parent kills or reads from. Each opens the window on the folder and tells, line by line on the
// standard output, what it has done.
#pragma once

#include <QString>

#include <cstdint>

// Works in the shop until it is killed. The work is numbered on from `first`; the number of the last finished piece
// stands in the shop's description, behind "Day ". Tells "ready", and then "kept N" once the disk must hold the shop
// with number N, "saving N" and "saved N" around a save, "done N" when piece N is in the shop, "late N" when that
// should have been kept and was not, and "failed" with the number of a run-time error.
int workAllDay(const QString& folder, int first, std::uint32_t seed);

// Opens the shop, with what was not saved when that is offered, and tells "offered" or "not offered", and
// "opened N"; or "failed".
int openShop(const QString& folder);
