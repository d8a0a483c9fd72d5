#pragma once

#include "platform/canvas/Pixels.hpp"
#include "platform/intents/ArchivedAction.hpp"
#include "platform/remote/Face.hpp"
#include "platform/remote/WidgetDescription.hpp"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace widgethost {

/// What a card shows from now on. The pixels are lent for the time of the call.
struct Shown {
    /// Without a face the extension has stopped at this widget: the card says so.
    const remote::Face* face = nullptr;
    double scale = 1;
    canvas::Pixels pixels;
};

/// A card that somebody looks at. It is kept up to date until it is destroyed.
class Display {
  public:
    virtual ~Display() = default;

    /// Asks for the picture in another scale.
    virtual void setScale(double scale) = 0;

    /// Runs the action of one of the face's elements, then asks for the face again.
    virtual void press(const intents::ArchivedAction& action) = 0;
};

/// Where the session finds what it needs.
struct SessionOptions {
    std::filesystem::path extension;  // the extension's program
    bool isAlone = false;             // keeps off the session bus
    bool requiresSandbox = false;     // wants no extension that the kernel does not wholly confine
    /// An extension that leaves a question unanswered for longer counts as hung.
    std::chrono::milliseconds patience = std::chrono::seconds(5);
    /// An extension that nobody has needed for so long is ended: starting it again is quick.
    std::chrono::milliseconds rest = std::chrono::seconds(60);
};

/// The widget host without its windows: it keeps the extension running, asks it for faces when they
/// are due and hands them to whoever displays them. For the thread of the default main context,
/// which makes all its calls.
class Session {
  public:
    using Show = std::function<void(const Shown&)>;

    explicit Session(const SessionOptions& options);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// The widgets of the extension in the order of its bundle; none until it has told of them.
    const std::vector<remote::WidgetDescription>& gallery() const;

    /// Calls `changed` whenever the gallery is another one.
    void onGalleryChanged(std::function<void()> changed);

    /// Shows the widget's timeline as it goes on.
    std::unique_ptr<Display> display(std::string kind, double scale, Show show);

    /// Shows the widget as the gallery does: its placeholder at once, then its snapshot.
    std::unique_ptr<Display> preview(std::string kind, double scale, Show show);

    /// Asks for all displayed faces again, or those of one kind.
    void reload(std::string_view kind = {});

  private:
    struct Contents;
    std::unique_ptr<Contents> contents_;
};

}  // namespace widgethost
