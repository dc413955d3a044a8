import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 300, height: 300)

  // Modifiers and Statics

  struct Blur: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
        .blur(radius: 3) // feGaussianBlur
    }
  }

  struct Region: ViewModifier {

    static let intrinsicSize = CGSize(width: 120, height: 120)
    static let origin        = CGPoint(x: 0, y: 0)

    func body(content: Content) -> some View {
      content // SourceGraphic
        .blur(radius: 2) // feGaussianBlur
      .frame(width: 120, height: 120)
      .offset(x: 0, y: 0)
    }
  }

  struct Shadow: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
        .shadow(color: .init(red: 0, green: 0, blue: 0.502, opacity: 0.5), radius: 4, x: 2, y: 3) // feDropShadow
    }
  }

  struct Merge: ViewModifier {

    func body(content: Content) -> some View {
      ZStack(alignment: .topLeading) { // feMerge
        Color.black.mask(content) // SourceAlpha
          .blur(radius: 2) // feGaussianBlur
        content // SourceGraphic
      }
    }
  }

  struct Blend: ViewModifier {

    func body(content: Content) -> some View {
      ZStack(alignment: .topLeading) { // feBlend
        content // SourceGraphic
        content // SourceGraphic
          .offset(x: 4, y: 4) // feOffset
          .blendMode(.multiply)
      }
    }
  }

  // Nested Groups and Shapes

  struct Circle1: View {

    static let intrinsicSize = CGSize(width: 80, height: 80)
    static let origin        = CGPoint(x: 10, y: 10)

    var body: some View {
      Circle()
        .fill(Color.black)
        .blur(radius: 3) // feGaussianBlur
    }
  }

  struct Circle2: View {

    static let intrinsicSize = CGSize(width: 80, height: 80)
    static let origin        = CGPoint(x: 110, y: 10)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(Region())
    }
  }

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: 80, height: 80)
    static let origin        = CGPoint(x: 10, y: 110)

    var body: some View {
      Rectangle()
        .fill(Color.black)
        .shadow(color: .init(red: 0, green: 0, blue: 0.502, opacity: 0.5), radius: 4, x: 2, y: 3) // feDropShadow
    }
  }

  struct Group2: View {
    // Group

    struct Circle3: View {

      static let intrinsicSize = CGSize(width: 60, height: 60)
      static let origin        = CGPoint(x: 120, y: 120)

      var body: some View {
        Circle()
          .fill(Color.black)
      }
    }

    var body: some View {
      Circle3()
        .frame(width: 60, height: 60, alignment: .topLeading)
        .padding(.leading, 120)
        .padding(.top, 120)
        .modifier(Merge())
    }
  }

  struct PathView1: View { // SVGPath

    struct PathShape1: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.addLines([
            .init(x: 10, y: 250),
            .init(x: 90, y: 250),
            .init(x: 50, y: 290)
          ])
          path.closeSubpath()
        }
      }
    }

    var body: some View {
      PathShape1()
        .fill(Color.black)
        .modifier(Blend())
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          Circle1()
            .frame(width: 80, height: 80, alignment: .topLeading)
            .padding(.leading, 10)
            .padding(.top, 10)
          Circle2()
            .frame(width: 80, height: 80, alignment: .topLeading)
            .padding(.leading, 110)
            .padding(.top, 10)
          Reactangle1()
            .frame(width: 80, height: 80, alignment: .topLeading)
            .padding(.leading, 10)
            .padding(.top, 110)
          Group2()
          PathView1()
        }
        .frame(width: 300, height: 300,
               alignment: .topLeading)
        .scaleEffect(x: proxy.size.width  / 300,
                     y: proxy.size.height / 300)
        .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      ZStack(alignment: .topLeading) {
        Circle1()
          .frame(width: 80, height: 80, alignment: .topLeading)
          .padding(.leading, 10)
          .padding(.top, 10)
        Circle2()
          .frame(width: 80, height: 80, alignment: .topLeading)
          .padding(.leading, 110)
          .padding(.top, 10)
        Reactangle1()
          .frame(width: 80, height: 80, alignment: .topLeading)
          .padding(.leading, 10)
          .padding(.top, 110)
        Group2()
        PathView1()
      }
      .frame(width: 300, height: 300)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .resizable()
        .frame(width  : Group1.intrinsicSize.width,
               height : Group1.intrinsicSize.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("Size: 300.0x300.0").padding(.bottom)
    }
  }
}
