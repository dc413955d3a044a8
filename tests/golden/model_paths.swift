import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 20, height: 20)

  // Nested Groups and Shapes

  struct PathView1: View { // SVGPath

    struct PathShape1: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.addLines([
            .init(x: 1, y: 2),
            .init(x: 4, y: 6),
            .init(x: 5, y: 6),
            .init(x: 5, y: 5)
          ])
        }
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
          path.addLines([
            .init(x: 1, y: 2),
            .init(x: 7, y: 2),
            .init(x: 7, y: 9)
          ])
        }
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
          path.addLine(to: .init(x: 3, y: 4))
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
          path.addLine(to: .init(x: 20, y: 10))
          path.closeSubpath()

          path.addLine(to: .init(x: 25, y: 15))
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
          path.move(to: .init(x: 1, y: 1))
          path.addCurve(to: .init(x: 4, y: 4),
                        control1: .init(x: 2, y: 1),
                        control2: .init(x: 3, y: 2))
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
          path.move(to: .init(x: 0, y: 0))
          path.addCurve(to: .init(x: 1, y: 0),
                        control1: .init(x: 0, y: 1),
                        control2: .init(x: 1, y: 1))
          path.addCurve(to: .init(x: 2, y: 0),
                        control1: .init(x: 1, y: -1),
                        control2: .init(x: 2, y: -1))
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
          path.move(to: .init(x: 0, y: 0))
          path.addCurve(to: .init(x: 2, y: 0),
                        control1: .init(x: 0, y: 0),
                        control2: .init(x: 1, y: 1))
        }
      }
    }

    var body: some View {
      PathShape7()
        .fill(Color.black)
    }
  }

  struct PathView8: View { // SVGPath

    struct PathShape8: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 0, y: 0))
          path.addQuadCurve(to: .init(x: 2, y: 0),
                            control: .init(x: 1, y: 1))
          path.addCurve(to: .init(x: 4, y: 0),
                        control1: .init(x: 3, y: -1),
                        control2: .init(x: 3, y: 1))
        }
      }
    }

    var body: some View {
      PathShape8()
        .fill(Color.black)
    }
  }

  struct PathView9: View { // SVGPath

    struct PathShape9: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 0, y: 0))
          path.addQuadCurve(to: .init(x: 2, y: 0),
                            control: .init(x: 1, y: 1))
          path.addQuadCurve(to: .init(x: 4, y: 0),
                            control: .init(x: 1, y: 1))
        }
      }
    }

    var body: some View {
      PathShape9()
        .fill(Color.black)
    }
  }

  struct PathView10: View { // SVGPath

    struct PathShape10: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 0, y: 0))
          path.addCurve(to: .init(x: 3, y: 0),
                        control1: .init(x: 0, y: 1),
                        control2: .init(x: 1, y: 2))
          path.addQuadCurve(to: .init(x: 4, y: 0),
                            control: .init(x: 1, y: 2))
        }
      }
    }

    var body: some View {
      PathShape10()
        .fill(Color.black)
    }
  }

  struct PathView11: View { // SVGPath

    struct PathShape11: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 0, y: 0))
          path.addQuadCurve(to: .init(x: 2, y: 0),
                            control: .init(x: 0, y: 0))
          path.addQuadCurve(to: .init(x: 4, y: 0),
                            control: .init(x: 2, y: 0))
        }
      }
    }

    var body: some View {
      PathShape11()
        .fill(Color.black)
    }
  }

  struct PathView12: View { // SVGPath

    struct PathShape12: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 1, y: 1))
          path.addQuadCurve(to: .init(x: 3, y: 1),
                            control: .init(x: 2, y: 2))
          path.addQuadCurve(to: .init(x: 5, y: 1),
                            control: .init(x: 2, y: 2))
        }
      }
    }

    var body: some View {
      PathShape12()
        .fill(Color.black)
    }
  }

  struct PathView13: View { // SVGPath

    struct PathShape13: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 0, y: 0))
          path.addQuadCurve(to: .init(x: 2, y: 0),
                            control: .init(x: 1, y: 1))
          path.closeSubpath()

          path.addQuadCurve(to: .init(x: 4, y: 0),
                            control: .init(x: 2, y: 0))
        }
      }
    }

    var body: some View {
      PathShape13()
        .fill(Color.black)
    }
  }

  struct PathView14: View { // SVGPath

    struct PathShape14: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 1, y: 1))
          path.addLine(to: .init(x: 3, y: 4))
          path.addQuadCurve(to: .init(x: 9, y: 9),
                            control: .init(x: 3, y: 4))
        }
      }
    }

    var body: some View {
      PathShape14()
        .fill(Color.black)
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          PathView1()
          PathView2()
          PathView3()
          PathView4()
          PathView5()
          PathView6()
          PathView7()
          PathView8()
          PathView9()
          PathView10()
          PathView11()
          PathView12()
          PathView13()
          PathView14()
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
        PathView1()
        PathView2()
        PathView3()
        PathView4()
        PathView5()
        PathView6()
        PathView7()
        PathView8()
        PathView9()
        PathView10()
        PathView11()
        PathView12()
        PathView13()
        PathView14()
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
