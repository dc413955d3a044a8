import SwiftUI

// SVG
struct Group1: View {

  static let viewBox = CGRect(x: 0.0, y: 0.0, width: 24, height: 24)

  // Modifiers and Statics

  static let fade = LinearGradient(
    gradient: .init(colors: [
      .clear /*unknown: inherit */, .red
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  // Nested Groups and Shapes

  struct PathView1: View { // SVGPath

    struct PathShape1: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 1, y: 1))
          path.addLine(to: .init(x: 5, y: 5))
        }
        .applying(.init(translationX: 3, y: 4).rotated(by: 0.5236))
      }
    }

    var body: some View {
      PathShape1()
        .fill(Color.black)
    }
  }

  struct PathView2: View { // SVGPath

    struct PathShape2: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 1, y: 1))
          path.addLine(to: .init(x: 5, y: 5))
        }
        .applying(
          .init(translationX: 300.5, y: 400.25)
            .rotated(by: 0.2182)
            .scaledBy(x: 2.5, y: 3.5)
            .rotated(by: -0.7854)
        )
      }
    }

    var body: some View {
      PathShape2()
        .fill(Color.black)
    }
  }

  struct PathView3: View { // SVGPath

    struct PathShape3: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 10, y: 10))
          path.addRelativeArc(center: .init(x: 0, y: 0), radius: 1, startAngle: Angle(radians: 3.0419), delta: Angle(radians: 3.1416), transform: CGAffineTransform(translationX: 15, y: 12.5)
            .rotated(by: 0.5236)
            .scaledBy(x: 5.608, y: 3.3648)
)
        }
      }
    }

    var body: some View {
      PathShape3()
        .fill(Color.black)
    }
  }

  struct PathView4: View { // SVGPath

    struct PathShape4: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 10, y: 10))
          path.addRelativeArc(center: .init(x: 0, y: 0), radius: 1, startAngle: Angle(radians: 3.1416), delta: Angle(radians: 3.1416), transform: CGAffineTransform(translationX: 15, y: 10)
            .scaledBy(x: 5, y: 5)
)
        }
      }
    }

    var body: some View {
      PathShape4()
        .fill(Color.black)
    }
  }

  struct PathView5: View { // SVGPath

    struct PathShape5: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 2, y: 2))
          path.addRelativeArc(center: .init(x: 0, y: 0), radius: 1, startAngle: Angle(radians: -2.0721), delta: Angle(radians: -3.1416), transform: CGAffineTransform(translationX: 7, y: 3)
            .rotated(by: -0.3491)
            .scaledBy(x: 9.0648, y: 3.0216)
)
        }
      }
    }

    var body: some View {
      ZStack {
        PathShape5()
          .fill(Color.clear /*unknown: context-fill */)
        PathShape5()
          .stroke(Color.clear /*unknown: transparent */, style: .init())
      }
    }
  }

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: 4, height: 4)

    var body: some View {
      Rectangle()
        .fill(Group1.fade)
    }
  }

  var body: some View {
    GeometryReader { proxy in
      ZStack(alignment: .topLeading) {
        PathView1()
        PathView2()
        PathView3()
        PathView4()
        PathView5()
        Reactangle1()
          .frame(width: 4, height: 4, alignment: .topLeading)
      }
      .frame(width: Self.viewBox.width, height: Self.viewBox.height,
             alignment: .topLeading)
      .scaleEffect(x: proxy.size.width  / Self.viewBox.width,
                   y: proxy.size.height / Self.viewBox.height)
      .frame(width: proxy.size.width, height: proxy.size.height)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .frame(width  : Group1.viewBox.width,
               height : Group1.viewBox.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("ViewBox: 0.0,0.0 24.0x24.0").padding(.bottom)
    }
  }
}
