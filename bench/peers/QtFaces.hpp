#pragma once

#include "estado/EstadoParaWidgets.hpp"

#include <QWidget>
#include <functional>
#include <memory>

namespace peers {

/// What the controls of a face do when they are pressed.
struct Requests {
    std::function<void(const QString& app, double level)> setVolume;
    std::function<void(const QString& app, bool silent)> mute;
};

// The widgets' faces as a Qt program makes them: labels, buttons and two widgets that paint
// themselves, in box layouts, on a card with its final geometry. Nothing has been painted yet.
// Requires a QApplication; `requests` must outlive the face.

std::unique_ptr<QWidget> volumeFace(const nurva::EstadoParaWidgets& estado,
                                    const Requests& requests);
std::unique_ptr<QWidget> whatIsOnFace(const nurva::EstadoParaWidgets& estado);

/// Whether every part of the face has a place on its card.
bool isLaidOut(const QWidget& face);

}  // namespace peers
