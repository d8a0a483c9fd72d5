#pragma once

namespace remote::protocol {

// What the widget host and an extension say to each other over their private socket, as D-Bus
// messages. Texts travel as bytes: a name may hold what no D-Bus string may.
//
//   Widgets()                                  → a(ayayayau)   the gallery
//   Lend(u slot, h memory)                     memory for a picture, kept until returned
//   Return(u slot)
//   Placeholder(ay kind, d scale, u slot)      → face; its pixels are then in the lent memory
//   Snapshot(ay kind, d scale, u slot)         → face
//   Timeline(ay kind, d scale, u slot)         → face
//   Perform(ay action, a(ayv) values)          answered when it has performed
//
// and from the extension, without an answer:
//
//   Post(ay name)                              a distributed notification to be sent
//
// A face is `(dbda(ybay(dddd)baya(ayv)))`: date of the entry, whether and not before when the
// timeline wants to be asked again, and the elements.

inline constexpr const char* interface = "org.nurva.WidgetExtension";
inline constexpr const char* path = "/org/nurva/WidgetExtension";

/// What the extension finds its end of the socket under.
inline constexpr int socketDescriptor = 3;

}  // namespace remote::protocol
