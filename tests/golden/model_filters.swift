import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 20, height: 20)

  // Modifiers and Statics

  struct Empty: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
    }
  }

  struct Chain: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
        .blur(radius: 2) // feGaussianBlur
        .offset(x: 1, y: 2) // feOffset
    }
  }

  struct Alpha: ViewModifier {

    func body(content: Content) -> some View {
      Color.black.mask(content) // SourceAlpha
        .blur(radius: 2) // feGaussianBlur
    }
  }

  struct Merged: ViewModifier {

    func body(content: Content) -> some View {
      ZStack(alignment: .topLeading) { // feMerge
        content // SourceGraphic
          .blur(radius: 2) // feGaussianBlur
        content // SourceGraphic
      }
    }
  }

  struct MissingNode: ViewModifier {

    func body(content: Content) -> some View {
      ZStack(alignment: .topLeading) { // feMerge
        content // SourceGraphic
      }
    }
  }

  struct MergeOfNothing: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
    }
  }

  struct PreviousAtStart: ViewModifier {

    func body(content: Content) -> some View {
      ZStack(alignment: .topLeading) { // feMerge
        content // SourceGraphic
        content // SourceGraphic
      }
    }
  }

  struct EmptyInputs: ViewModifier {

    func body(content: Content) -> some View {
      ZStack(alignment: .topLeading) { // feMerge
        content // SourceGraphic
      }
    }
  }

  struct BlendMissing: ViewModifier {

    func body(content: Content) -> some View {
      ZStack(alignment: .topLeading) { // feBlend
        Color.black.mask(content) // SourceAlpha
        Color.black.mask(content) // SourceAlpha
          .blendMode(.multiply)
      }
    }
  }

  struct BlurAfterBlend: ViewModifier {

    func body(content: Content) -> some View {
      ZStack(alignment: .topLeading) { // feBlend
        content // SourceGraphic
        content // SourceGraphic
          .blendMode(.multiply)
      }
        .blur(radius: 3) // feGaussianBlur
    }
  }

  struct UnsupportedInput: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
        .blur(radius: 1) // feGaussianBlur
    }
  }

  struct UnsupportedPrimitive: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
        .blur(radius: 1) // feGaussianBlur
    }
  }

  struct UnsupportedAfterBlend: ViewModifier {

    func body(content: Content) -> some View {
      ZStack(alignment: .topLeading) { // feBlend
        content // SourceGraphic
        content // SourceGraphic
          .blendMode(.normal)
      }
    }
  }

  struct RestartAfterName: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
        .blur(radius: 2) // feGaussianBlur
    }
  }

  struct ExplicitInput: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
        .blur(radius: 2) // feGaussianBlur
    }
  }

  struct ChainOnNamed: ViewModifier {

    func body(content: Content) -> some View {
      ZStack(alignment: .topLeading) { // feMerge
        content // SourceGraphic
          .blur(radius: 1) // feGaussianBlur
        content // SourceGraphic
          .blur(radius: 1) // feGaussianBlur
          .offset(x: 1, y: 1) // feOffset
          .offset(x: 2, y: 2) // feOffset
      }
    }
  }

  struct Shadows: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
        .shadow(radius: 2) // feDropShadow
        .frame(width: 10, height: 20)
        .shadow(color: .red, radius: 4, x: 1, y: 0) // feDropShadow
        .offset(x: 0, y: 3)
    }
  }

  struct Soft_shadow: ViewModifier {

    static let origin        = CGPoint(x: -5, y: 0)

    func body(content: Content) -> some View {
      content // SourceGraphic
        .blur(radius: 1) // feGaussianBlur
      .offset(x: -5, y: 0)
    }
  }

  static let g = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  // Nested Groups and Shapes

  struct Circle1: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  struct Circle2: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .blur(radius: 2) // feGaussianBlur
        .offset(x: 1, y: 2) // feOffset
    }
  }

  struct Circle3: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(Alpha())
    }
  }

  struct Circle4: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(Merged())
    }
  }

  struct Circle5: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(MissingNode())
    }
  }

  struct Circle6: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  struct Circle7: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(PreviousAtStart())
    }
  }

  struct Circle8: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(EmptyInputs())
    }
  }

  struct Circle9: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(BlendMissing())
    }
  }

  struct Circle10: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(BlurAfterBlend())
    }
  }

  struct Circle11: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .blur(radius: 1) // feGaussianBlur
    }
  }

  struct Circle12: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .blur(radius: 1) // feGaussianBlur
    }
  }

  struct Circle13: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(UnsupportedAfterBlend())
    }
  }

  struct Circle14: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .blur(radius: 2) // feGaussianBlur
    }
  }

  struct Circle15: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .blur(radius: 2) // feGaussianBlur
    }
  }

  struct Circle16: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(ChainOnNamed())
    }
  }

  struct Circle17: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .shadow(radius: 2) // feDropShadow
        .frame(width: 10, height: 20)
        .shadow(color: .red, radius: 4, x: 1, y: 0) // feDropShadow
        .offset(x: 0, y: 3)
    }
  }

  struct Circle18: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(Soft_shadow())
    }
  }

  struct Circle19: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .modifier(Soft_shadow())
    }
  }

  struct Circle20: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  struct Circle21: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  struct Group2: View {
    // Group

    struct Circle22: View {

      static let intrinsicSize = CGSize(width: 2, height: 2)
      static let origin        = CGPoint(x: -1, y: -1)

      var body: some View {
        Circle()
          .fill(Color.black)
      }
    }

    var body: some View {
      Circle22()
        .frame(width: 2, height: 2, alignment: .topLeading)
        .padding(.leading, -1)
        .padding(.top, -1)
        .blur(radius: 2) // feGaussianBlur
        .offset(x: 1, y: 2) // feOffset
    }
  }

  // SVG
  struct Group3: View {

    // Modifiers and Statics

    struct Own: ViewModifier {

      func body(content: Content) -> some View {
        content // SourceGraphic
          .blur(radius: 2) // feGaussianBlur
      }
    }

    var body: some View {
      EmptyView() // Group w/o content
    }
  }

  // SVG
  struct Group4: View {

    var body: some View {
      EmptyView() // Group w/o content
        .modifier(Alpha())
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          Circle1()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle2()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle3()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle4()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle5()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle6()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle7()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle8()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle9()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle10()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle11()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle12()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle13()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle14()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle15()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle16()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle17()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle18()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle19()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle20()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle21()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Group2()
          Group3()
          Group4()
        }
        .frame(width: 20, height: 20,
               alignment: .topLeading)
        .scaleEffect(x: proxy.size.width  / 20,
                     y: proxy.size.height / 20)
        .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      ZStack(alignment: .topLeading) {
        Circle1()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle2()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle3()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle4()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle5()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle6()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle7()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle8()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle9()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle10()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle11()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle12()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle13()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle14()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle15()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle16()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle17()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle18()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle19()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle20()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle21()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Group2()
        Group3()
        Group4()
      }
      .frame(width: 20, height: 20)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .resizable()
        .frame(width  : 12 * Group1.intrinsicSize.width,
               height : 12 * Group1.intrinsicSize.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("Size: 20.0x20.0").padding(.bottom)
    }
  }
}
