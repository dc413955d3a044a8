import SwiftUI

// SVG
struct Group1: View {

  // Nested Groups and Shapes

  struct PathView1: View { // SVGPath

    struct PathShape1: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 0, y: 0))
          path.addLine(to: .init(x: 1, y: 0))
        }
      }
    }

    var body: some View {
      PathShape1()
        .fill(Color.black)
    }
  }

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: 3, height: 4)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Circle1: View {

    static let intrinsicSize = CGSize(width: 4, height: 4)
    static let origin        = CGPoint(x: -2, y: -2)

    var body: some View {
      Circle()
    }
  }

  var body: some View {
    ZStack(alignment: .topLeading) {
      PathView1()
      Reactangle1()
        .frame(width: 3, height: 4, alignment: .topLeading)
      Circle1()
        .frame(width: 4, height: 4, alignment: .topLeading)
        .padding(.leading, -2)
        .padding(.top, -2)
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
