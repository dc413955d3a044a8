import SwiftUI

// SVG
struct Group1: View {

  static let viewBox = CGRect(x: 0.0, y: 0.0, width: 24, height: 24)

  // Nested Groups and Shapes

  struct Star: View { // SVGPath

    struct Star: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 2, y: 2))
          path.addLine(to: .init(x: 10, y: 2))
          path.addCurve(to: .init(x: 16.1235, y: 8),
                        control1: .init(x: 12, y: 4),
                        control2: .init(x: 14, y: 6))
          path.addQuadCurve(to: .init(x: 20, y: 12),
                            control: .init(x: 18, y: 10))
          path.closeSubpath()

          path.move(to: .init(x: 3, y: 3))
          path.addLine(to: .init(x: 4, y: 5))
          path.closeSubpath()
        }
      }
    }

    var body: some View {
      ZStack {
        Star()
          .fill(Color(red: 0.2, green: 0.4, blue: 0.6))
        Star()
          .stroke(Color.red, style: .init(lineWidth: 2, lineCap: .round))
      }
    }
  }

  struct PathView1: View { // SVGPath

    struct PathShape1: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 1, y: 1))
          path.addLine(to: .init(x: 5, y: 5))
        }
        .offsetBy(dx: 3, dy: 4)
      }
    }

    var body: some View {
      PathShape1()
        .stroke(Color.blue, style: .init())
    }
  }

  struct PathView2: View { // SVGPath

    struct PathShape2: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 1, y: 1))
          path.addLine(to: .init(x: 5, y: 5))
        }
        .applying(.init(translationX: 3, y: 4).rotatedy(x: 0.5236))
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
          path.move(to: .init(x: 1, y: 1))
          path.addLine(to: .init(x: 5, y: 5))
        }
        .applying(
          .init(translationX: 300.5, y: 400.25)
            .scaledBy(x: 2.5, y: 3.5)
            .concatenating(CGAffineTransform(a: 1, b: 0.5, c: 0.25, d: 1, tx: 7, ty: 8))
        )
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
          path.addRelativeArc(center: .init(x: 0, y: 0), radius: 1, startAngle: Angle(radians: 3.0419), delta: Angle(radians: 3.1416)), transform: CGAffineTransform(translationX: 15, y: 12.5)
            .rotatedy(x: 0.5236)
            .scaledBy(x: 5.608, y: 3.3648)
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
          path.move(to: .init(x: 10, y: 10))
          path.addRelativeArc(center: .init(x: 0, y: 0), radius: 1, startAngle: Angle(radians: 3.1416), delta: Angle(radians: 3.1416)), transform: CGAffineTransform(translationX: 15, y: 10)
            .scaledBy(x: 5, y: 5)
)
        }
      }
    }

    var body: some View {
      PathShape5()
        .fill(Color.black)
    }
  }

  struct PathView6: View { // SVGPath

    struct PathShape6: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.addLines([
            .init(x: 1, y: 1),
            .init(x: 5, y: 1),
            .init(x: 5, y: 5)
          ])
          path.closeSubpath()
        }
      }
    }

    var body: some View {
      PathShape6()
        .fill(Color.black)
    }
  }

  struct PathView7: View { // SVGPath

    struct PathShape7: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.addLines([
            .init(x: 1, y: 1),
            .init(x: 5, y: 1),
            .init(x: 5, y: 5)
          ])
        }
      }
    }

    var body: some View {
      PathShape7()
        .stroke(Color.black, style: .init(lineJoin: .bevel))
    }
  }

  struct PathView8: View { // SVGPath

    struct PathShape8: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 0, y: 0))
          path.addLine(to: .init(x: 24, y: 24))
        }
      }
    }

    var body: some View {
      ZStack {
        PathShape8()
          .fill(Color.black)
        PathShape8()
          .stroke(Color.green, style: .init())
      }
    }
  }

  var body: some View {
    GeometryReader { proxy in
      ZStack(alignment: .topLeading) {
        Star()
        PathView1()
        PathView2()
        PathView3()
        PathView4()
        PathView5()
        PathView6()
        PathView7()
        PathView8()
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
