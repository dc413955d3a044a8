import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 100, height: 100)

  // Nested Groups and Shapes

  struct Circle1: View {

    static let intrinsicSize = CGSize(width: 20, height: 20)
    static let origin        = CGPoint(x: 10, y: 20)

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  struct Circle2: View {

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  struct Circle3: View {

    static let intrinsicSize = CGSize(width: 20, height: 20)
    static let origin        = CGPoint(x: 0, y: 20)

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  struct Circle4: View {

    static let intrinsicSize = CGSize(width: 20, height: 20)

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  struct Ellipse1: View {

    static let intrinsicSize = CGSize(width: 10, height: 4)
    static let origin        = CGPoint(x: 5, y: 8)

    var body: some View {
      Ellipse()
        .fill(Color.black)
    }
  }

  struct Ellipse2: View {

    static let intrinsicSize = CGSize(width: 20, height: 20)
    static let origin        = CGPoint(x: 0, y: 0)

    var body: some View {
      Ellipse()
        .fill(Color.black)
    }
  }

  struct Ellipse3: View {

    var body: some View {
      Ellipse()
        .fill(Color.black)
    }
  }

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: 3, height: 4)
    static let origin        = CGPoint(x: 1, y: 2)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle2: View {

    static let origin        = CGPoint(x: 5, y: 0)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle3: View {

    static let intrinsicSize = CGSize(width: 3, height: 4)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle4: View {

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle5: View {

    static let origin        = CGPoint(x: 5, y: 0)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle6: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      RoundedRectangle(cornerRadius: 3)
        .fill(Color.black)
    }
  }

  struct Reactangle7: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      RoundedRectangle(cornerRadius: 2)
        .fill(Color.black)
    }
  }

  struct Reactangle8: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      RoundedRectangle(cornerRadius: 0)
        .fill(Color.black)
    }
  }

  struct PathView1: View { // SVGPath

    struct PathShape1: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 0, y: 0))
          path.addLine(to: .init(x: 3, y: 4))
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
            .init(x: 0, y: 0)
          ])
          path.closeSubpath()
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
        }
      }
    }

    var body: some View {
      PathShape3()
        .fill(Color.black)
    }
  }

  struct Star: View { // SVGPath

    struct Star: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 0, y: 0))
          path.addLine(to: .init(x: 1, y: 1))
        }
      }
    }

    var body: some View {
      Star()
        .fill(Color.black)
    }
  }

  struct PathView4: View { // SVGPath

    struct PathShape4: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.move(to: .init(x: 0, y: 0))
          path.addLine(to: .init(x: 2, y: 2))
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
          path.move(to: .init(x: 0, y: 0))
          path.addLine(to: .init(x: 1, y: 1))
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
          path.addLine(to: .init(x: 1, y: 0))
        }
        .applying(.init(rotationAngle: 0.7854))
      }
    }

    var body: some View {
      PathShape6()
        .fill(Color.black)
    }
  }

  struct Circle5: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
        .rotationEffect(Angle(degrees: 45))
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
      ZStack {
        Circle()
          .fill(Color.black)
        Circle()
          .stroke()
          .opacity(20)
      }
    }
  }

  struct Circle8: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .stroke(Color.red, style: .init(lineWidth: 3, lineCap: .square))
    }
  }

  struct Circle9: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      ZStack {
        Circle()
          .fill(Color.black)
        Circle()
          .stroke(Color.red, style: .init())
      }
    }
  }

  struct Circle10: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
    }
  }

  struct Group2: View {
    // Group

    struct Circle11: View {

      static let intrinsicSize = CGSize(width: 2, height: 2)
      static let origin        = CGPoint(x: -1, y: -1)

      var body: some View {
        ZStack {
          Circle()
            .fill(Color.red)
          Circle()
            .stroke(Color.blue, style: .init(lineWidth: 3, lineJoin: .bevel))
        }
      }
    }

    struct Circle12: View {

      static let intrinsicSize = CGSize(width: 2, height: 2)
      static let origin        = CGPoint(x: -1, y: -1)

      var body: some View {
        ZStack {
          Circle()
            .fill(Color.blue)
          Circle()
            .stroke(Color.blue, style: .init(lineWidth: 3))
        }
      }
    }

    var body: some View {
      ZStack(alignment: .topLeading) {
        Circle11()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle12()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
      }
      .scaleEffect(x: 2, y: 2)
    }
  }

  struct Group3: View {
    // Group

    var body: some View {
      Text("hi")
        .foregroundColor(.red)
        .padding(.leading, 10)
        .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
        .frame(width: .infinity, height: 20, alignment: .bottom)
    }
  }

  struct Group4: View {
    // Group

    var body: some View {
      EmptyView() // Group w/o content
        .offset(x: 1, y: 2)
    }
  }

  // SVG
  struct Inner_svg: View {

    var body: some View {
      EmptyView() // Group w/o content
    }
  }

  struct Group5: View {
    // Group

    var body: some View {
      EmptyView() // Group w/o content
    }
  }

  struct C: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  struct Circle13: View {

    static let intrinsicSize = CGSize(width: 4, height: 4)
    static let origin        = CGPoint(x: -2, y: -2)

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          Circle1()
            .frame(width: 20, height: 20, alignment: .topLeading)
            .padding(.leading, 10)
            .padding(.top, 20)
          Circle2()
          Circle3()
            .frame(width: 20, height: 20, alignment: .topLeading)
            .padding(.top, 20)
          Circle4()
            .frame(width: 20, height: 20, alignment: .topLeading)
          Ellipse1()
            .frame(width: 10, height: 4, alignment: .topLeading)
            .padding(.leading, 5)
            .padding(.top, 8)
          Ellipse2()
            .frame(width: 20, height: 20, alignment: .topLeading)
          Ellipse3()
          Reactangle1()
            .frame(width: 3, height: 4, alignment: .topLeading)
            .padding(.leading, 1)
            .padding(.top, 2)
          Reactangle2()
            .padding(.leading, 5)
          Reactangle3()
            .frame(width: 3, height: 4, alignment: .topLeading)
          Reactangle4()
          Reactangle5()
            .padding(.leading, 5)
          Reactangle6()
            .frame(width: 1, height: 1, alignment: .topLeading)
          Reactangle7()
            .frame(width: 1, height: 1, alignment: .topLeading)
          Reactangle8()
            .frame(width: 1, height: 1, alignment: .topLeading)
          PathView1()
          PathView2()
          PathView3()
          Star()
          PathView4()
          PathView5()
          PathView6()
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
          Group2()
          Text("hi")
            .foregroundColor(.black)
            .padding(.leading, 10)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 5, alignment: .bottom)
          Group3()
          Text("hi")
            .foregroundColor(.black)
            .padding(.leading, 13)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 20, alignment: .bottom)
          Text("hi")
            .foregroundColor(.black)
            .padding(.leading, 1)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 3.8346, alignment: .bottom)
          Text("hi")
            .font(.body) // caption
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 0, alignment: .bottom)
          Group4()
          Inner_svg()
            .padding(.leading, 5)
          Group5()
          C()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle13()
            .frame(width: 4, height: 4, alignment: .topLeading)
            .padding(.leading, -2)
            .padding(.top, -2)
        }
        .frame(width: 100, height: 100,
               alignment: .topLeading)
        .scaleEffect(x: proxy.size.width  / 100,
                     y: proxy.size.height / 100)
        .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      ZStack(alignment: .topLeading) {
        Circle1()
          .frame(width: 20, height: 20, alignment: .topLeading)
          .padding(.leading, 10)
          .padding(.top, 20)
        Circle2()
        Circle3()
          .frame(width: 20, height: 20, alignment: .topLeading)
          .padding(.top, 20)
        Circle4()
          .frame(width: 20, height: 20, alignment: .topLeading)
        Ellipse1()
          .frame(width: 10, height: 4, alignment: .topLeading)
          .padding(.leading, 5)
          .padding(.top, 8)
        Ellipse2()
          .frame(width: 20, height: 20, alignment: .topLeading)
        Ellipse3()
        Reactangle1()
          .frame(width: 3, height: 4, alignment: .topLeading)
          .padding(.leading, 1)
          .padding(.top, 2)
        Reactangle2()
          .padding(.leading, 5)
        Reactangle3()
          .frame(width: 3, height: 4, alignment: .topLeading)
        Reactangle4()
        Reactangle5()
          .padding(.leading, 5)
        Reactangle6()
          .frame(width: 1, height: 1, alignment: .topLeading)
        Reactangle7()
          .frame(width: 1, height: 1, alignment: .topLeading)
        Reactangle8()
          .frame(width: 1, height: 1, alignment: .topLeading)
        PathView1()
        PathView2()
        PathView3()
        Star()
        PathView4()
        PathView5()
        PathView6()
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
        Group2()
        Text("hi")
          .foregroundColor(.black)
          .padding(.leading, 10)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 5, alignment: .bottom)
        Group3()
        Text("hi")
          .foregroundColor(.black)
          .padding(.leading, 13)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 20, alignment: .bottom)
        Text("hi")
          .foregroundColor(.black)
          .padding(.leading, 1)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 3.8346, alignment: .bottom)
        Text("hi")
          .font(.body) // caption
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 0, alignment: .bottom)
        Group4()
        Inner_svg()
          .padding(.leading, 5)
        Group5()
        C()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle13()
          .frame(width: 4, height: 4, alignment: .topLeading)
          .padding(.leading, -2)
          .padding(.top, -2)
      }
      .frame(width: 100, height: 100)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .resizable()
        .frame(width  : 2 * Group1.intrinsicSize.width,
               height : 2 * Group1.intrinsicSize.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("Size: 100.0x100.0").padding(.bottom)
    }
  }
}
