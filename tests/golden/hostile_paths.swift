import SwiftUI

// SVG
struct Group1: View {

  // Nested Groups and Shapes

  struct PathView1: View { // SVGPath

    struct PathShape1: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.addLine(to: .init(x: 1, y: 1))
          path.addLine(to: .init(x: 2, y: 2))
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
          path.addLine(to: .init(x: 1, y: 1))
          path.addLine(to: .init(x: 2, y: 2))
          path.addLine(to: .init(x: 3, y: 3))
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
          path.addLine(to: .init(x: 5, y: 0))
          path.addLine(to: .init(x: 5, y: 5))
          path.addLine(to: .init(x: 6, y: 5))
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
          path.addLine(to: .init(x: 1, y: 1))
          path.addLine(to: .init(x: 3, y: 3))
          path.closeSubpath()
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
          path.addLine(to: .init(x: 1, y: 1))
          path.addLine(to: .init(x: 2, y: 2))
          path.addLines([
            .init(x: 0, y: 0),
            .init(x: 3, y: 3),
            .init(x: 4, y: 4)
          ])
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
          path.addLine(to: .init(x: 5, y: 5))
          path.addLine(to: .init(x: 6, y: 6))
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
            .init(x: 0, y: 0),
            .init(x: 1, y: 1),
            .init(x: 2, y: 2)
          ])
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
          path.addLine(to: .init(x: 1, y: 1))
          path.addCurve(to: .init(x: 3, y: 3),
                        control1: .init(x: 1, y: 1),
                        control2: .init(x: 2, y: 2))
        }
      }
    }

    var body: some View {
      PathShape8()
        .fill(Color.black)
    }
  }

  var body: some View {
    ZStack(alignment: .topLeading) {
      PathView1()
      PathView2()
      PathView3()
      PathView4()
      PathView5()
      PathView6()
      PathView7()
      PathView8()
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .frame(width: 128, height: 128)
        .background(Color.clear.border(Color.green))
        .padding()
    }
  }
}
