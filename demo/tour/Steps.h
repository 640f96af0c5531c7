// The road of the tour, one area of the program after the other; each area has a file of its own.
#pragma once

#include "Tour.h"

#include "application/MAIN000.h"

/// The log-in, by keyboard. The main form opens it by itself, before the road begins.
void expectLogIn(Tour& tour);

void addMenus(Tour& tour);
void addWorkshop(Tour& tour);
void addRegister(Tour& tour);
void addBooking(Tour& tour);
/// Of the order that was booked in.
void addItems(Tour& tour);
void addProcesses(Tour& tour);
void addQuotation(Tour& tour);
/// Pictures of an item; the register arranged and exported.
void addImages(Tour& tour);
void addDialogs(Tour& tour);
void addNotices(Tour& tour, TfrmMAIN000& menu);
/// Signing in again, by finger, on the screens of both families of readers.
void addFingers(Tour& tour);
/// The last steps: the program ends.
void addExit(Tour& tour);
