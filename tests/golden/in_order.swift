import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 64, height: 64)

  // Modifiers and Statics

  struct Soft: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
        .blur(radius: 2) // feGaussianBlur
    }
  }

  // Nested Groups and Shapes

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: 10, height: 10)

    var body: some View {
      Rectangle()
        .stroke(Color.black, style: .init())
        .blur(radius: 2) // feGaussianBlur
    }
  }

  // SVG
  struct Group2: View {

    static let intrinsicSize = CGSize(width: 20, height: 20)

    // Modifiers and Statics

    static let fade = LinearGradient(
      gradient: .init(colors: [
        // A gradient w/ just a single stop?
        .blue
      ]),
      startPoint: .leading, endPoint: .trailing
    )

    static let inner = RadialGradient(
      gradient: .init(colors: [
        // A gradient w/ just a single stop?
        .green
      ]),
      center: .init(x: 0.5, y: 0.5), startRadius: 0, endRadius: 0
    )

    // Nested Groups and Shapes

    struct Circle1: View {

      static let intrinsicSize = CGSize(width: 10, height: 10)
      static let origin        = CGPoint(x: -5, y: -5)

      var body: some View {
        Circle()
          .fill(Group2.inner)
      }
    }

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          Circle1()
            .frame(width: 10, height: 10, alignment: .topLeading)
            .padding(.leading, -5)
            .padding(.top, -5)
            .frame(width: 20, height: 20,
                   alignment: .topLeading)
            .scaleEffect(x: proxy.size.width  / 20,
                         y: proxy.size.height / 20)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        Circle1()
          .frame(width: 10, height: 10, alignment: .topLeading)
          .padding(.leading, -5)
          .padding(.top, -5)
          .frame(width: 20, height: 20)
      }
    }
  }

  struct Group3: View {
    // Group

    var body: some View {
      EmptyView() // Group w/o content
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          Reactangle1()
            .frame(width: 10, height: 10, alignment: .topLeading)
          Text("Before the end")
            .foregroundColor(.black)
            .padding(.leading, 4)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 20, alignment: .bottom)
          Group2()
            .resizable()
            .frame(width: 20, height: 20, alignment: .topLeading)
            .padding(.leading, 20)
          Group3()
        }
        .frame(width: 64, height: 64,
               alignment: .topLeading)
        .scaleEffect(x: proxy.size.width  / 64,
                     y: proxy.size.height / 64)
        .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      ZStack(alignment: .topLeading) {
        Reactangle1()
          .frame(width: 10, height: 10, alignment: .topLeading)
        Text("Before the end")
          .foregroundColor(.black)
          .padding(.leading, 4)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 20, alignment: .bottom)
        Group2()
          .resizable()
          .frame(width: 20, height: 20, alignment: .topLeading)
          .padding(.leading, 20)
        Group3()
      }
      .frame(width: 64, height: 64)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .resizable()
        .frame(width  : 3 * Group1.intrinsicSize.width,
               height : 3 * Group1.intrinsicSize.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("Size: 64.0x64.0").padding(.bottom)
    }
  }
}
