#include "platform/views/faces/FaceParts.hpp"

#include "platform/views/controls/Button.hpp"
#include "platform/views/controls/Divider.hpp"
#include "platform/views/controls/Image.hpp"
#include "platform/views/layout/GeometryReader.hpp"
#include "platform/views/shapes/Path.hpp"
#include "platform/views/stacks/Spacer.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"
#include "platform/views/view/ViewList.hpp"

#include <algorithm>

namespace views {

namespace {

constexpr Color ink{0.9, 0.9, 0.9};
constexpr Color fill{0.1, 0.1, 0.1};

Text line(const std::string& text, double size, FontWeight weight = regular) {
    return Text(text).font({.size = size, .weight = weight}).foregroundStyle(ink).lineLimit(1);
}

View header(const std::string& left, const View& right) {
    return HStack{.spacing = 5}({
        line(left, 9, semibold).tracking(0.9),
        Spacer{.minLength = 0},
        right,
    });
}

View boxed(const View& view, double radius) {
    const RoundedRectangle box{.cornerRadius = radius};
    return view.background(fill, box).overlay(box.strokeBorder(ink, 1));
}

View stepButton(const char* symbol) {
    const View label = boxed(Image::systemName(symbol)
                                 .font({.size = 9, .weight = bold})
                                 .foregroundStyle(ink)
                                 .frame({.width = 22, .height = 22}),
                             7);
    return Button({.identifier = "step"}, label.opacity(0.45));
}

View bar() {
    return GeometryReader([](Size size) -> View {
               const double filled = size.width * 0.6;
               const std::vector<int> segments{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
               return ZStack{.alignment = Alignment::leading()}(
                          {
                              Capsule{}.fill(fill).frame({.height = 5}),
                              Capsule{}.fill(ink).frame({.width = filled, .height = 5}),
                              RoundedRectangle{.cornerRadius = 3}
                                  .fill(ink)
                                  .frame({.width = 7, .height = 16})
                                  .offset(std::max(filled - 3.5, 0.0), 0),
                              HStack{}({forEach(segments,
                                                [](int segment) {
                                                    return Button(
                                                        {.identifier = std::to_string(segment)},
                                                        Color::clear());
                                                })})
                                  .frame({.height = 16}),
                          })
                   .frame({.height = 16});
           })
        .frame({.height = 16});
}

View curve(double lineWidth) {
    return GeometryReader([lineWidth](Size size) -> View {
        const std::vector<Point> points{{0, size.height / 2}, {size.width, 0}};
        return ZStack{}({
            Path{points}.fill(ink.opacity(0.1)),
            Path{points}.stroke(ink, {.lineWidth = lineWidth}),
        });
    });
}

}  // namespace

View volumeRow(const std::string& name, Frames& drawn) {
    return traced(
        HStack{.spacing = volumeRowGap}({
            traced(line(name, 12, semibold).frame({.width = 70, .alignment = Alignment::leading()}),
                   drawn),
            traced(stepButton("minus"), drawn),
            traced(bar(), drawn),
            traced(stepButton("plus"), drawn),
            traced(Text("100%")
                       .font({.size = 11, .design = FontDesign::monospaced})
                       .frame({.width = 36, .alignment = Alignment::trailing()}),
                   drawn),
            traced(boxed(Image::systemName("speaker.wave.2.fill")
                             .font({.size = 10})
                             .frame({.width = 26, .height = 22}),
                         7),
                   drawn),
        }),
        drawn);
}

View volumeFace(int rows, Frames& drawn) {
    std::vector<View> members;
    for (int row = 0; row < rows; ++row)
        members.push_back(volumeRow("Reproductor", drawn));
    return VStack{.alignment = leading, .spacing = 9}({
        header("VOLUMEN POR APP", line("3 sonando", 10.5)),
        ViewList(members),
        Text("− y + de 10 en 10 · o toca la barra donde lo quieras").font({.size = 10.5}),
    });
}

View currentProfileFace(const std::string& reason, Frames& drawn) {
    return traced(
        VStack{.alignment = leading}({
            traced(header("NURVA", Circle{}.fill(ink).frame({.width = 6, .height = 6})), drawn),
            traced(curve(2.2).frame({.height = 44}).padding(Edge::top, 10), drawn),
            Spacer{.minLength = 6},
            traced(line("Noche", 19, semibold), drawn),
            when(!reason.empty(),
                 [&] { return traced(Text(reason).font({.size = 11}).lineLimit(2), drawn); }),
            traced(line("Altavoces del MacBook Pro", 10.5).padding(Edge::top, 4), drawn),
        }),
        drawn);
}

View tileRow(const std::vector<std::string>& names, Frames& drawn) {
    return traced(
        HStack{.spacing = tileGap}(
            {forEach(names,
                     [&](const std::string& name) {
                         const View label = VStack{.spacing = 3}({
                             curve(1.6).frame({.width = 34, .height = 10}),
                             line(name, 11.5, semibold),
                         });
                         return traced(
                             Button({.identifier = name},
                                    boxed(label.frame({.maxWidth = infinity, .minHeight = 44}), 9)),
                             drawn);
                     })}),
        drawn);
}

View switchRow(const std::string& note, Frames& drawn) {
    const View label = HStack{.spacing = 6}({
        Circle{}.fill(ink).frame({.width = 7, .height = 7}),
        Text("Ecualizador encendido").font({.size = 11.5, .weight = semibold}),
    });
    return traced(
        HStack{.spacing = switchRowGap}({
            traced(Button({.identifier = "switch"},
                          boxed(label.padding(Edge::horizontal, 12).padding(Edge::vertical, 6), 8)),
                   drawn),
            Spacer{.minLength = 0},
            traced(line(note, 10.5), drawn),
        }),
        drawn);
}

View valueRow(const std::string& value, Frames& drawn) {
    return traced(HStack{.alignment = firstTextBaseline, .spacing = valueRowGap}({
                      traced(Text(value).font(
                                 {.size = 26, .weight = medium, .design = FontDesign::monospaced}),
                             drawn),
                      traced(Text("dB").font({.size = 11}), drawn),
                  }),
                  drawn);
}

View roomFace(const std::string& output, Frames& drawn) {
    return traced(
        VStack{.alignment = leading}({
            traced(header("TU CUARTO", line("hace 3 días", 10)), drawn),
            traced(Text(output)
                       .font({.size = 12.5, .weight = semibold})
                       .lineLimit(2)
                       .padding(Edge::top, 10),
                   drawn),
            Spacer{.minLength = 6},
            traced(HStack{.alignment = firstTextBaseline, .spacing = valueRowGap}({
                       Text("±2,4").font({.size = 26}),
                       Text("dB").font({.size = 11}),
                   }),
                   drawn),
            traced(Text("antes ±6.3").font({.size = 10.5}), drawn),
            traced(View(Divider{}).overlay(ink), drawn),
            traced(Text("3 salidas sin medir").font({.size = 10}).padding(Edge::top, 8), drawn),
        }),
        drawn);
}

}  // namespace views
